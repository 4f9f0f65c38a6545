; Test coil: 200 turns of 0.25 mm wire in four layers on a 13 mm bobbin.
; X guide along the bobbin, Y guide to the coil (mm), U wire tension (N), S spindle (1/min).

G21            ; millimetres
G90            ; absolute positions
T1             ; guide tube 0.25 mm
G00 X0 Y25 U0
M10            ; clamp the wire on the start pin

; Layer 1, left to right
G00 X0.125 Y8
G01 U2.5 F200
S300 M03
G33 X12.625 K0.25
G04 F0.2       ; turn at the flange

; Layer 2, right to left
G01 Y8.25 F400
S600
G33 X0.125 K0.25
G04 F0.2

; Layer 3
G01 Y8.5 F400
G33 X12.625 K0.25
G04 F0.2

; Layer 4, slow to the end
G01 Y8.75 F400
S300
G33 X0.125 K0.25
M05

G01 U0 F200
G00 X0 Y25
M12            ; cut the wire
M30
