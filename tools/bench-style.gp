# What the pictures of the benchmarks' figures share; loaded from the project's folder.
blue = 0x1b66b1
orange = 0xc8641b
green = 0x2b8a5b
gray = 0x767676

set style line 1 linecolor rgb blue linewidth 2.2 pointtype 7 pointsize 0.6
set style line 2 linecolor rgb orange linewidth 2.2 pointtype 7 pointsize 0.6
set style line 3 linecolor rgb green linewidth 2.2 pointtype 7 pointsize 0.6
set style line 9 linecolor rgb gray linewidth 1.2 dashtype (3,4)

set border 3 linecolor rgb gray
set tics nomirror textcolor rgb "#404040"
set xlabel textcolor rgb "#404040"
set grid ytics linetype 1 linewidth 1 linecolor rgb "#e4e4e4"
unset mxtics
unset mytics
unset key
set lmargin 10
set rmargin 14
set tmargin 2.5
set bmargin 3.5

last(file, column) = real(system(sprintf("awk 'END { print $%d }' '%s'", column, file)))
