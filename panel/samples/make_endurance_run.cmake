# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# cmake -DOUTPUT=FILE -P make_endurance_run.cmake
#
# Writes the longest sample, 20,000 lines: 950 layers of 21 lines between a head and a tail. It is
# there to be loaded, scrolled and downloaded, so its lines differ from one another.

set(layers 950)
set(total 20000)

# A number of hundredths as text: 1250 gives 12.50.
function(hundredths number result)
  math(EXPR whole "${number} / 100")
  math(EXPR rest "${number} % 100 + 100")
  string(SUBSTRING "${rest}" 1 2 rest)
  set(${result} "${whole}.${rest}" PARENT_SCOPE)
endfunction()

set(text "; Endurance run: one coil after another of fine wire, 950 layers.\n")
string(APPEND text "G21\nG90\nT1\nG00 X0 Y60 U0\nM10\nG01 U2.00 F200\nS300 M03\n")
set(lines 8)

foreach(layer RANGE 1 ${layers})
  string(APPEND text "; Layer ${layer}\n")
  math(EXPR radius "1200 + ${layer} % 190 * 22")
  hundredths(${radius} y)
  math(EXPR tension "600 - ${layer} % 190")
  hundredths(${tension} u)
  string(APPEND text "G01 Y${y} U${u} F800\n")
  math(EXPR backwards "${layer} % 2")
  foreach(section RANGE 1 18)
    math(EXPR speed "300 + (${section} * 37 + ${layer} * 11) % 600")
    math(EXPR position "${section} * 200 + ${layer} % 7 * 3")
    if(backwards)
      math(EXPR position "3800 - ${position}")
    endif()
    hundredths(${position} x)
    string(APPEND text "G33 X${x} K0.22 S${speed}\n")
  endforeach()
  string(APPEND text "G04 F0.2\n")
  math(EXPR lines "${lines} + 21")
endforeach()

string(APPEND text "M05\nM12\nG00 X0 Y60\nM30\n")
math(EXPR lines "${lines} + 4")
# The rest is a ramp-down that fills the program to the round number.
math(EXPR missing "${total} - ${lines}")
set(ramp "")
foreach(step RANGE 1 ${missing})
  math(EXPR speed "300 - ${step} * 6")
  string(APPEND ramp "G04 F0.1 S${speed}\n")
endforeach()
string(REPLACE "M05\nM12\n" "${ramp}M05\nM12\n" text "${text}")
file(WRITE "${OUTPUT}" "${text}")
