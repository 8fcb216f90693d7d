#!/usr/bin/env bash
# make-sample.sh: writes the sample document to standard output, a PDF of one US Letter page with a
# title, text, a colour picture, a grey wedge and overlapping shapes. sample.pdf beside it is its output.
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

# 48 by 32 pixels of a sunset over the sea, as hexadecimal RGB.
picture() {
    awk 'BEGIN {
        for (y = 0; y < 32; y++) {
            for (x = 0; x < 48; x++) {
                far = sqrt((x - 30) ^ 2 + (y - 15) ^ 2)
                if (y < 19 && far < 5)
                    printf "fff0b0"
                else if (y < 19)
                    printf "%02x%02x%02x", 90 + 8 * y, 60 + 5 * y, 150 - 4 * y
                else if (y < 30 && (x - 30) ^ 2 < 9 + (y - 19) * 2 && (x + y) % 3)
                    printf "f0b070"
                else
                    printf "%02x%02x%02x", 20 + (x * y) % 12, 50 + (y * 3) % 17, 110 + (x + y) % 9
            }
            print ""
        }
        printf ">"
    }'
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

# text FONT SIZE X Y TEXT
text() {
    echo "BT /$1 $2 Tf $3 $4 Td ($5) Tj ET"
}

page() {
    local step
    echo "0.11 0.24 0.42 rg"
    text Bold 28 72 690 "Korvane sample page"
    echo "0 g"
    text Plain 12 72 664 "Text in black, a picture in full colour, a grey wedge and transparent shapes:"
    text Plain 12 72 648 "compare print quality, paper type, ink and colour preferences on one sheet."
    echo "q 468 0 0 312 72 316 cm /Picture Do Q"
    for step in 0 1 2 3 4 5 6 7 8 9; do
        echo "0.$step g $((72 + step * 468 / 10)) 268 47 30 re f"
    done
    echo "q /Half gs"
    circle 150 180 56 0.85 0.10 0.45
    circle 210 180 56 0.98 0.82 0.05
    circle 180 128 56 0.05 0.55 0.80
    echo "Q 0 g"
    for step in 0 1 2 3 4 5 6; do
        text Plain $((6 + step * 2)) 320 $((226 - step * 24)) "Print quality at $((6 + step * 2)) points"
    done
    text Plain 9 72 48 "Page 1 of 1"
}

add_object "<< /Type /Catalog /Pages 2 0 R >>"
add_object "<< /Type /Pages /Kids [3 0 R] /Count 1 >>"
add_object "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R /Resources << \
/Font << /Plain 5 0 R /Bold 6 0 R >> /XObject << /Picture 7 0 R >> /ExtGState << /Half 8 0 R >> >> >>"
add_stream "" "$(page)"
add_object "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"
add_object "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold >>"
add_stream "/Type /XObject /Subtype /Image /Width 48 /Height 32 /ColorSpace /DeviceRGB \
/BitsPerComponent 8 /Interpolate true /Filter /ASCIIHexDecode" "$(picture)"
add_object "<< /Type /ExtGState /ca 0.75 /BM /Multiply >>"

header=$'%PDF-1.4\n'
printf '%s%s' "$header" "$body"
printf 'xref\n0 %d\n0000000000 65535 f \n' $((${#offsets[@]} + 1))
for offset in "${offsets[@]}"; do
    printf '%010d 00000 n \n' $((${#header} + offset))
done
printf 'trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n' \
    $((${#offsets[@]} + 1)) $((${#header} + ${#body}))
