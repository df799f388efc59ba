# Two panels: the time and the resources that wifitoolctl takes for many printers at once.
# usage: gnuplot -c bench-fleet.gp FIGURES PICTURE
# FIGURES holds the rows of the benchmark's first table, without the bars: printers, milliseconds of the whole and of the
# slowest run, their ratio, threads, descriptors, MiB.
load "tools/bench-style.gp"
figures = ARG1

set terminal svg name "Fleet" size 1000,380 font "sans-serif,13" background "#ffffff"
set output ARG2
set multiplot layout 1,2

alone = real(system(sprintf("awk 'NR == 1 { print $2 }' '%s'", figures))) / 1000
set xlabel "printers at once"
set xrange [0:50]
set xtics (1, 5, 20, 50)

set title "From start to end"
set yrange [0:12]
set format y "%g s"
set label "  whole" at 50, last(figures, 2) / 1000 + 0.2 textcolor rgb blue
set label "  slowest run" at 50, last(figures, 3) / 1000 - 0.5 textcolor rgb orange
set label "the aim at 20: 1.2 times one printer alone" at 2, alone * 1.2 + 0.9 textcolor rgb gray font ",11"
plot alone * 1.2 with lines linestyle 9, \
     figures using 1:($2 / 1000) with linespoints linestyle 1, \
     figures using 1:($3 / 1000) with linespoints linestyle 2
unset label

set title "At its highest"
set yrange [0:130]
set format y "%g"
set label "  descriptors" at 50, last(figures, 6) textcolor rgb blue
set label "  threads" at 50, last(figures, 5) textcolor rgb orange
set label "  memory, MiB" at 50, last(figures, 7) textcolor rgb green
plot figures using 1:6 with linespoints linestyle 1, \
     figures using 1:5 with linespoints linestyle 2, \
     figures using 1:7 with linespoints linestyle 3
