# gnuplot levels.gnuplot: draws levels.svg from levels.data and shares.data, all in the
# folder of the call.
set terminal svg size 1000,310 font "sans-serif,13" background "#ffffff"
set output "levels.svg"
set multiplot layout 1,3
set xlabel "Level"
set xrange [0.3:6.7]
set xtics 1
set yrange [0:*]
set ytics 20
set grid ytics
set tics nomirror
set border 3
set boxwidth 0.6
set style fill solid
set style line 1 linecolor "#2f6fb2" linewidth 2 pointtype 7
unset key
set title "The computer's words per hundred goes"
plot "levels.data" using 1:2 with boxes linestyle 1
set title "Goes until its claim: median and middle half"
plot "levels.data" using 1:4:3:5 with yerrorbars linestyle 1 pointsize 0, \
    "" using 1:4:(0.1) with circles linestyle 1
set title "The part of a game's different words"
set ytics 0.2
plot "shares.data" using 1:2 with boxes linestyle 1
