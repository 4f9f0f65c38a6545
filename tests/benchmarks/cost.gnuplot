# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# gnuplot -c cost.gnuplot FIGURES.csv PLOT.svg
#
# Cost of a load against the length of the program: CPU time and peak memory.

figures = ARG1
set terminal svg size 900,420 font "sans,12" background "white"
set output ARG2
set logscale xy
set xlabel "lines"
set grid
set key left top reverse Left
set format x "10^{%L}"
subjects = "library plain floor QScintilla KTextEditor"
titles = "library,plain transcription,toolkit without colours,QScintilla,KTextEditor"
rows(work, subject) = sprintf("< awk -F, '$1 == \"figure\" && $2 == \"%s\" && $4 == \"%s\" { print $3, $7 }' '%s'", work, subject, figures)
title_of(i) = system(sprintf("echo '%s' | cut -d, -f%d", titles, i))

set multiplot layout 1,2
set ylabel "CPU time, ms"
plot for [i=1:words(subjects)] rows("load", word(subjects, i)) with linespoints linewidth 2 title title_of(i)
set ylabel "peak memory, MB"
set yrange [20:2000]
plot for [i=1:words(subjects)] rows("peak memory of a load", word(subjects, i)) with linespoints linewidth 2 title title_of(i)
unset multiplot
