#!/usr/bin/env bash
# make-sample.sh: writes the sample document to standard output, a PDF of four US Letter pages: a
# title with a picture in full colour; text in columns; a chart; a grey wedge, overlapping shapes and
# small print. sample.pdf beside it is its output.
set -euo pipefail
export LC_ALL=C

body= # the file so far
offsets=()

# add_object TEXT: the next object, numbered from 1.
add_object() {
    offsets+=("${#body}")
    body+="${#offsets[@]} 0 obj"$'\n'"$1"$'\n'"endobj"$'\n'
}

# add_stream DICTIONARY_ENTRIES DATA
add_stream() {
    add_object "<< $1 /Length ${#2} >>"$'\n'"stream"$'\n'"$2"$'\n'"endstream"
}

# add_shading TOP BOTTOM COLOUR COLOUR: from the first colour at the top to the second one.
add_shading() {
    add_object "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 $1 0 $2] /Extend [true true] \
/Function << /FunctionType 2 /Domain [0 1] /N 1 /C0 [$3] /C1 [$4] >> >>"
}

# circle X Y RADIUS RED GREEN BLUE: four Bezier curves, filled.
circle() {
    awk -v x="$1" -v y="$2" -v r="$3" -v colour="$4 $5 $6" 'BEGIN {
        k = 0.5523 * r
        printf "%s rg %g %g m\n", colour, x + r, y
        printf "%g %g %g %g %g %g c\n", x + r, y + k, x + k, y + r, x, y + r
        printf "%g %g %g %g %g %g c\n", x - k, y + r, x - r, y + k, x - r, y
        printf "%g %g %g %g %g %g c\n", x - r, y - k, x - k, y - r, x, y - r
        printf "%g %g %g %g %g %g c f\n", x + k, y - r, x + r, y - k, x + r, y
    }'
}

# ridge RED GREEN BLUE HEIGHT...: mountains from left to right of the picture.
ridge() {
    local colour="$1 $2 $3" x=72 step height
    shift 3
    step=$((468 / ($# - 1)))
    echo "$colour rg 72 430 m"
    for height in "$@"; do
        echo "$x $((430 + height)) l"
        x=$((x + step))
    done
    echo "540 430 l f"
}

# text FONT SIZE X Y TEXT
text() {
    echo "BT /$1 $2 Tf $3 $4 Td ($5) Tj ET"
}

# heading TEXT
heading() {
    echo "0.11 0.24 0.42 rg"
    text Bold 28 72 690 "$1"
    echo "0 g"
}

# footer PAGE
footer() {
    echo "0.45 g"
    text Plain 9 72 48 "Korvane sample pages"
    text Plain 9 500 48 "$1 of 4"
    echo "0 g"
}

# A sunset over the sea, behind two ranges of mountains.
picture() {
    local ripple
    echo "q 72 220 468 400 re W n /Sky sh"
    echo "/Glow gs"
    circle 390 500 90 1.00 0.80 0.45
    echo "/Whole gs"
    circle 390 500 48 1.00 0.93 0.72
    ridge 0.45 0.36 0.52 20 64 38 92 60 118 70 96 44 80 30 52 24
    ridge 0.27 0.24 0.40 70 40 58 22 34 10 24 8 30 14 46 26 60
    echo "q 72 220 468 210 re W n /Sea sh Q"
    echo "/Glow gs 1 0.85 0.55 rg"
    for ripple in 0 1 2 3 4 5 6 7 8; do
        echo "$((360 - ripple * 5)) $((420 - ripple * ripple * 2 - ripple * 6)) $((60 + ripple * 10)) $((2 + ripple / 2)) re f"
    done
    echo "/Whole gs 0.12 0.12 0.20 rg 150 300 m 196 300 l 188 286 l 158 286 l f"
    echo "0.96 0.95 0.92 rg 171 304 m 171 372 l 204 304 l f 167 304 m 167 360 l 146 304 l f Q"
}

# paragraph X Y: lines of text down from there.
paragraph() {
    local y=$2 line
    for line in "Print quality, paper type and ink" "belong together: a layer of ink that" \
        "dries on glossy paper runs on plain" "paper, and what is sharp in black" \
        "looks flat in colour. Compare this" "page in draft and in best quality," \
        "on two kinds of paper, and keep the" "choice that you like as a preset." \
        "The small letters show first whether" "the heads of the printer are clean."; do
        text Plain 12 "$1" "$y" "$line"
        y=$((y - 17))
    done
}

page_1() {
    heading "Korvane sample pages"
    text Plain 13 72 658 "A picture in full colour, text, a chart and shades of grey on four pages."
    picture
    text Plain 11 72 196 "Look for even sky, clear edges of the mountains and light on the water."
    text Plain 11 72 178 "On iron-on paper the whole page is printed as in a mirror."
    footer 1
}

page_2() {
    heading "Text in two columns"
    paragraph 72 640
    paragraph 320 640
    echo "0.83 0.88 0.94 rg 72 418 468 30 re f 0.11 0.24 0.42 rg"
    text Bold 14 84 428 "What a column of small print looks like"
    echo "0 g"
    paragraph 72 390
    paragraph 320 390
    footer 2
}

page_3() {
    local bar=0 height
    local colours=("0.11 0.24 0.42" "0.20 0.48 0.72" "0.30 0.65 0.62" "0.93 0.70 0.25" "0.87 0.42 0.28" "0.62 0.20 0.38")
    heading "A chart"
    text Plain 13 72 658 "Areas of one colour show bands before anything else does."
    for height in 110 190 150 260 330 290; do
        echo "${colours[bar]} rg $((84 + bar * 76)) 250 56 $height re f 0 g"
        text Plain 12 $((100 + bar * 76)) 230 "20$((bar + 10))"
        bar=$((bar + 1))
    done
    echo "0.5 G 1 w 72 250 m 540 250 l S 0.85 G"
    for height in 350 450 550; do
        echo "72 $height m 540 $height l S"
    done
    footer 3
}

page_4() {
    local step
    heading "Greys, inks and small print"
    for step in 0 1 2 3 4 5 6 7 8 9; do
        echo "0.$step g $((72 + step * 468 / 10)) 600 47 50 re f"
    done
    echo "q /Half gs"
    circle 230 470 90 0.85 0.10 0.45
    circle 330 470 90 0.98 0.82 0.05
    circle 280 390 90 0.05 0.55 0.80
    echo "Q 0 g"
    for step in 0 1 2 3 4 5 6; do
        text Plain $((6 + step * 2)) 72 $((250 - step * 26)) "Print quality at $((6 + step * 2)) points"
    done
    footer 4
}

resources="/Font << /Plain 11 0 R /Bold 12 0 R >> /Shading << /Sky 13 0 R /Sea 14 0 R >> \
/ExtGState << /Half 15 0 R /Glow 16 0 R /Whole 17 0 R >>"
add_object "<< /Type /Catalog /Pages 2 0 R >>"
add_object "<< /Type /Pages /Kids [3 0 R 5 0 R 7 0 R 9 0 R] /Count 4 >>"
for page in 1 2 3 4; do
    add_object "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents $((2 + 2 * page)) 0 R \
/Resources << $resources >> >>"
    add_stream "" "$("page_$page")"
done
add_object "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"
add_object "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold >>"
add_shading 620 430 "0.25 0.30 0.55" "0.98 0.66 0.42"
add_shading 430 220 "0.72 0.50 0.48" "0.07 0.17 0.33"
add_object "<< /Type /ExtGState /ca 0.55 /BM /Multiply >>"
add_object "<< /Type /ExtGState /ca 0.35 /BM /Normal >>"
add_object "<< /Type /ExtGState /ca 1 /BM /Normal >>"

header=$'%PDF-1.4\n'
printf '%s%s' "$header" "$body"
printf 'xref\n0 %d\n0000000000 65535 f \n' $((${#offsets[@]} + 1))
for offset in "${offsets[@]}"; do
    printf '%010d 00000 n \n' $((${#header} + offset))
done
printf 'trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n' \
    $((${#offsets[@]} + 1)) $((${#header} + ${#body}))
