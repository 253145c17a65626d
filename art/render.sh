#!/bin/sh
# Renders the vector sources of this folder into src/res/pictures, where the resource script takes them from: the icon, and
# each picture at 100, 150 and 200 percent. Needs rsvg-convert, ImageMagick and icotool. The results are committed, so that a
# build needs none of them; run this after changing a drawing.
set -eu
cd "$(dirname "$0")"
out=../src/res/pictures
mkdir -p "$out"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# bitmap NAME WIDTH HEIGHT BACKGROUND [COLOURS]: NAME.svg at three sizes, on the colour of the control behind it
bitmap() {
  for percent in 100 150 200; do
    rsvg-convert -w $(($2 * percent / 100)) -h $(($3 * percent / 100)) -b "$4" "$1.svg" -o "$scratch/picture.png"
    convert "$scratch/picture.png" +dither -colors 16 -type Palette "BMP3:$out/$1-$percent.bmp"
  done
}

for style in 0 1 2 3 4 5; do
  bitmap preview-$style 200 150 white
done
for name in orientation-portrait orientation-landscape duplex-simplex duplex-vertical duplex-horizontal; do
  bitmap $name 32 32 white
done

# One strip of flags in the order of their numbers.
for percent in 100 150 200; do
  for flag in flag-*.svg; do
    number=${flag#flag-} # with zeros before it, because file names are in the order of their letters
    rsvg-convert -w $((20 * percent / 100)) -h $((14 * percent / 100)) -b white "$flag" \
      -o "$scratch/flag-$(printf %03d "${number%%-*}").png"
  done
  convert "$scratch"/flag-*.png +append -type TrueColor "BMP3:$out/flags-$percent.bmp"
done

for size in 16 20 24 32 40 48 64 128 256; do
  source=icon.svg
  [ $size -le 24 ] && source=icon-small.svg
  rsvg-convert -w $size -h $size "$source" -o "$scratch/icon-$size.png"
done
icotool -c -o "$out/folivant.ico" "$scratch"/icon-16.png "$scratch"/icon-20.png "$scratch"/icon-24.png \
  "$scratch"/icon-32.png "$scratch"/icon-40.png "$scratch"/icon-48.png "$scratch"/icon-64.png "$scratch"/icon-128.png \
  --raw="$scratch/icon-256.png"
