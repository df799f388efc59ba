# Two panels: how the cost of the network list and of the model catalogue grows.
# usage: gnuplot -c bench-growth.gp LIST CATALOGUE PICTURE
# LIST and CATALOGUE hold the rows of their benchmark's table: a count and milliseconds, without the bars.
list = ARG1
catalogue = ARG2

load "tools/bench-style.gp"
set terminal svg name "Growth" size 1000,380 font "sans-serif,13" background "#ffffff"
set output ARG3
set multiplot layout 1,2

set logscale xy
set format y "%g ms"

# The ranges begin a little early, or the first mark would be lost in the logarithm's rounding.
set title "The network list"
set xlabel "networks"
set xrange [9.9:10000]
set yrange [0.01:100]
set xtics ("10" 10, "100" 100, "1,000" 1000, "10,000" 10000)
set label "  painted" at 10000, last(list, 2) textcolor rgb blue
set label "  one scroll step" at 10000, last(list, 4) textcolor rgb orange
set label "a frame at 60 Hz" at 11, 25 textcolor rgb gray font ",11"
plot 1000.0 / 60 with lines linestyle 9, \
     list using 1:2 with linespoints linestyle 1, \
     list using 1:4 with linespoints linestyle 2
unset label

set title "The model catalogue"
set xlabel "models"
set xrange [9.9:100000]
set yrange [0.001:100]
set xtics ("10" 10, "100" 100, "1,000" 1000, "10,000" 10000, "100,000" 100000)
set label "  read" at 100000, last(catalogue, 2) * 1.1 textcolor rgb blue
set label "  has it Wi-Fi" at 100000, last(catalogue, 4) textcolor rgb orange
set label "  is it known" at 100000, last(catalogue, 3) / 1.5 textcolor rgb green
set arrow from 1000, 0.005 to 100000, 0.5 nohead linestyle 9
set label "in proportion" at 9000, 0.02 textcolor rgb gray font ",11"
plot catalogue using 1:2 with linespoints linestyle 1, \
     catalogue using 1:4 with linespoints linestyle 2, \
     catalogue using 1:3 with linespoints linestyle 3
