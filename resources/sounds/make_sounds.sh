#!/usr/bin/env bash
#
# Makes the game's seventeen sounds in the folder this script lies in.
#
#   Usage:  resources/sounds/make_sounds.sh
#
# Not needed to build: the made files are committed.  Run it again only after
# changing a sound here.  Running it twice gives the same bytes: every noise
# comes from SoX's fixed seed (-R) and nothing carries a date.
#
# Needs sox, espeak-ng and lame.  On Debian:
#
#   apt-get install sox espeak-ng lame
#
# What it makes: sixteen PCM files with the plain 44-byte RIFF/WAVE header, and
# daffy.wav, an MPEG Layer 3 stream inside a RIFF/WAVE file (format tag 85).
# The lengths are fixed to the sample: rate times seconds, halves rounded up.
#
# How: each sound is put together at 44100 Hz from "layers" (a noise burst, a
# tone, a spoken line), which are mixed at given times and levels.  The result
# is then brought to its own rate, cut to its length, faded at the very end,
# levelled and written.

set -euo pipefail
export LC_ALL=C

out_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

work_rate=44100

for tool in sox espeak-ng lame; do
    if ! command -v "$tool" >/dev/null; then
        echo "make_sounds.sh: $tool is missing" >&2
        exit 1
    fi
done

# ---------------------------------------------------------------- tools ----

# SoX with repeatable random numbers and without dither, so that silence stays
# silent in the 8-bit files.
run_sox() {
    sox -R -D "$@"
}

# layer NAME EFFECT...: a layer made from nothing by SoX effects.
layer() {
    local name=$1
    shift
    run_sox -n -r "$work_rate" -c 1 -b 32 "$work/$name.wav" "$@"
}

# noise NAME SECONDS SKIP COLOUR EFFECT...: a noise layer.  The noise always
# starts from the same seed, so SKIP (seconds left out at its beginning) is
# what makes one noise differ from the next.
noise() {
    local name=$1 seconds=$2 skip=$3 colour=$4
    shift 4
    layer "$name" synth "$(sum "$seconds" "$skip")" "$colour" gain -6 \
        trim "$skip" "$seconds" "$@"
}

# change NEW OLD EFFECT...: a layer made from another one.
change() {
    local new=$1 old=$2
    shift 2
    run_sox "$work/$old.wav" -b 32 "$work/$new.wav" "$@"
}

# mix NAME LAYER@SECONDS*VOLUME...: a layer that is the sum of others, each
# starting at its time.  At least two are needed.
mix() {
    local name=$1 spec rest
    local -a inputs=()
    shift
    for spec in "$@"; do
        rest=${spec#*@}
        inputs+=(-v "${rest#*\*}"
                 "|sox -R -D $work/${spec%%@*}.wav -p pad ${rest%%\**}")
    done
    run_sox -m "${inputs[@]}" -b 32 "$work/$name.wav"
}

# swell NEW OLD CONTROL: OLD with its volume moved by CONTROL.
swell() {
    run_sox -T "$work/$2.wav" "$work/$3.wav" -b 32 "$work/$1.wav"
}

# speak NAME ROOM VOICE SPEED PITCH TEXT: a spoken layer, without the silence
# the speech engine puts around it, its consonants lifted so that they survive
# at 11025 Hz and 8 bits.  It must fit into ROOM seconds, or its last word
# would be cut off.
speak() {
    local name=$1 room=$2 seconds
    espeak-ng -v "$3" -s "$4" -p "$5" -w "$work/$name.raw.wav" "$6"
    run_sox "$work/$name.raw.wav" -b 32 "$work/$name.wav" \
        rate -h "$work_rate" \
        silence 1 0.002 0.1% reverse silence 1 0.002 0.1% reverse \
        highpass 120 treble 4 3000 gain -n -3 \
        compand 0.004,0.09 6:-50,-45,-30,-14,-12,-7,0,-5 -4 -90 0.004 \
        fade t 0.003 reverse fade t 0.01 reverse gain -n -3 gain -l 5 gain -n -3
    seconds=$(soxi -D "$work/$name.wav")
    if awk -v a="$seconds" -v b="$room" 'BEGIN { exit !(a > b) }'; then
        echo "make_sounds.sh: $name takes $seconds s, has $room s" >&2
        exit 1
    fi
}

sum() {
    awk -v a="$1" -v b="$2" 'BEGIN { printf "%.4f", a + b }'
}

# frames RATE HUNDREDTHS: the number of sample frames, halves rounded up.
frames() {
    echo $((($1 * $2 + 50) / 100))
}

# finish LAYER FILE RATE BITS HUNDREDTHS PEAK: writes FILE.wav from LAYER; PEAK
# is the highest level in dB.
finish() {
    local name=$1 file=$2 rate=$3 bits=$4 hundredths=$5 peak=$6
    local count encoding=signed-integer
    count=$(frames "$rate" "$hundredths")
    if [ "$bits" = 8 ]; then
        encoding=unsigned-integer
    fi
    # A layer longer than its file never reaches the padding, and SoX would
    # warn of that: -V1.
    run_sox -V1 "$work/$name.wav" \
        -t wavpcm -r "$rate" -b "$bits" -e "$encoding" "$out_dir/$file.wav" \
        gain -n -6 highpass 30 rate -h "$rate" pad 0 2 trim 0 "${count}s" \
        fade t 0.001 "${count}s" 0.008 gain -n "$peak"
}

# ------------------------------------------------- scroll bar and firing ----

# click: one short tick, quieter than everything else.
layer tick synth 0.010 sine 1900 fade l 0 0.010 0.010 gain -8
noise tack 0.003 0 whitenoise fade l 0 0.003 0.003
mix click tick@0*0.7 tack@0*0.5
finish click click 11025 8 1 -9

# shot: a falling thump, the burst of the charge, and a short tail.
layer thump synth 0.30 sine 210/55 gain -2 fade l 0 0.30 0.28
noise burst 0.30 0 whitenoise lowpass 2400 gain -n -3 fade l 0 0.30 0.30
noise puff 0.50 1 pinknoise lowpass 1100 highpass 90 gain -n -3 \
    fade p 0 0.50 0.48
mix shot_dry thump@0*0.4 burst@0*0.35 puff@0.005*0.22
change shot shot_dry overdrive 5 reverb 30 60 40 100 0 -3
finish shot shot 11025 8 50 -0.7

# ------------------------------------------------------------ explosions ----

# explosion: a bright crack, a body, and a low rumble that outlasts both.
noise crack 0.40 2 whitenoise lowpass 3500 fade l 0 0.40 0.40
noise body 0.70 3 pinknoise lowpass 1400 gain -n -3 fade l 0 0.70 0.66
noise rumble 0.90 5 pinknoise lowpass 420 highpass 60 gain -n -2 overdrive 6 \
    fade t 0 0.90 0.90 fade t 0 0.90 0.90
layer drop synth 0.50 sine 120/38 gain -2 fade l 0 0.50 0.48
mix explosion_dry crack@0*0.4 body@0*0.5 rumble@0.01*0.4 drop@0*0.4
change explosion explosion_dry overdrive 6 gain -1 reverb 30 50 50 100 0 -6 \
    fade h 0 0.90 0.15
finish explosion explosion 11025 8 90 -0.7

# bullseye: a crack and a large blast, two more as things go up, then debris
# that patters down over a long rumble.
noise blast 1.40 7 pinknoise lowpass 1100 gain -n -2 overdrive 8 \
    fade l 0 1.40 1.30
noise quake 3.30 9 pinknoise lowpass 320 highpass 55 gain -n -2 overdrive 8 \
    fade t 0 3.30 3.30 fade h 0 3.30 2.00
layer fall synth 0.90 sine 110/34 gain -2 overdrive 6 fade l 0 0.90 0.86
noise chip 0.06 11 whitenoise bandpass 1500 900h gain -n -3 fade l 0 0.06 0.06
noise chunk 0.12 12 whitenoise bandpass 650 400h gain -n -3 fade l 0 0.12 0.12
noise clod 0.18 13 pinknoise lowpass 330 gain -n -3 fade l 0 0.18 0.18
mix bullseye_dry \
    crack@0*0.4 blast@0*0.4 quake@0*0.4 fall@0*0.35 \
    blast@0.28*0.35 crack@0.28*0.25 blast@0.62*0.25 crack@0.62*0.14 \
    chunk@0.95*0.22 chip@1.08*0.20 clod@1.16*0.30 chip@1.24*0.15 \
    chunk@1.37*0.20 chip@1.45*0.16 chip@1.52*0.12 clod@1.66*0.26 \
    chunk@1.74*0.15 chip@1.85*0.13 chip@2.02*0.12 chunk@2.10*0.12 \
    clod@2.28*0.17 chip@2.36*0.09 chip@2.58*0.08 chunk@2.71*0.07
change bullseye bullseye_dry \
    compand 0.003,0.15 6:-60,-54,-30,-24,-15,-11,0,-5 0 -90 0.003 gain -1 \
    reverb 45 40 80 100 0 -4 fade h 0 3.30 0.30
finish bullseye bullseye 6993 8 330 -0.7

# nearmiss: the blast at once, as the shell is seen to hit; then a splinter
# whines away.
layer whine synth 0.96 sine 2300/750 gain -6 tremolo 21 25 \
    fade p 0.06 0.96 0.70
noise hiss 0.96 14 whitenoise bandpass 1500 800h gain -n -8 \
    fade p 0.06 0.96 0.70
mix nearmiss_dry crack@0*0.45 body@0*0.5 rumble@0*0.3 drop@0*0.4 \
    whine@0.16*0.26 hiss@0.16*0.14
change nearmiss nearmiss_dry overdrive 8 gain -3 \
    reverb 25 50 50 100 0 -6 fade h 0 1.10 0.20
finish nearmiss nearmiss 11025 8 110 -0.7

# outofbounds: a whistle that falls and is lost in the distance.
layer away synth 1.15 sine 2300/620 gain -4 tremolo 13 30 fade t 0.03 1.15 1.00
layer away_low synth 1.15 sine 1150/310 gain -4 fade t 0.03 1.15 1.05
noise wind 1.15 16 whitenoise bandpass 1600 1000h gain -n -6 \
    fade t 0.05 1.15 1.00
mix outofbounds_dry away@0*0.5 away_low@0*0.25 wind@0*0.2
change outofbounds outofbounds_dry reverb 50 40 90 100 0 -3
finish outofbounds outofbounds 11025 8 130 -1.5

# --------------------------------------------------------------- thunder ----

# A roll is low noise whose volume wanders with a second, very slow noise.
# roll NAME SECONDS SKIP LOWPASS WANDER
roll() {
    local name=$1 seconds=$2 skip=$3 cutoff=$4 wander=$5
    noise "$name.low" "$seconds" "$skip" pinknoise lowpass "$cutoff" \
        highpass 60 gain -n -3 overdrive 6 gain -n -3
    noise "$name.slow" "$seconds" "$(sum "$skip" 3.3)" whitenoise \
        lowpass "$wander" lowpass "$wander" gain -n -4 dcshift 0.35
    swell "$name" "$name.low" "$name.slow"
}

# thunder1: a clap close by, then it rolls off.
noise rip 0.50 21 whitenoise lowpass 2600 gain -n -3 tremolo 27 70 \
    fade l 0.01 0.50 0.45
noise clap 1.10 23 pinknoise lowpass 800 gain -n -3 fade l 0.01 1.10 1.00
roll roll1 3.60 25 380 3
change roll1_off roll1 fade p 0.08 3.60 2.80
mix thunder1_dry rip@0*0.45 clap@0.06*0.6 clap@0.42*0.35 roll1_off@0.05*0.8
change thunder1 thunder1_dry gain -4 reverb 60 40 100 100 0 -2
finish thunder1 thunder1 8000 8 370 -0.7

# thunder2: it growls first and breaks after a second.
noise split 0.30 31 whitenoise lowpass 3000 gain -n -3 tremolo 41 80 \
    fade l 0.03 0.30 0.26
roll roll2 3.30 33 300 5
change roll2_off roll2 fade h 0.90 3.30 2.00
mix thunder2_dry roll2_off@0*0.9 split@0.80*0.3 clap@0.86*0.6 \
    split@1.04*0.25 clap@1.12*0.5 clap@1.62*0.25
change thunder2 thunder2_dry gain -4 reverb 55 60 100 100 0 -3
finish thunder2 thunder2 8000 8 340 -0.7

# thunder3: a long one that walks around the sky, in four waves.
roll roll3 9.40 41 340 2
change roll3_off roll3 fade h 0.40 9.40 4.50
noise wave 2.60 45 pinknoise lowpass 420 highpass 60 gain -n -3 overdrive 6 \
    gain -n -3 tremolo 7 45 fade h 0.35 2.60 2.10
noise far 2.80 49 pinknoise lowpass 240 highpass 55 gain -n -3 overdrive 6 \
    gain -n -3 tremolo 5 50 fade h 0.70 2.80 2.00
mix thunder3_dry roll3_off@0*0.7 rip@0.25*0.25 clap@0.30*0.5 wave@0.40*0.45 \
    clap@2.45*0.3 wave@2.30*0.4 far@4.30*0.4 clap@4.60*0.12 far@6.20*0.25
change thunder3 thunder3_dry gain -4 reverb 65 50 100 100 0 -3
finish thunder3 thunder3 8000 8 960 -0.7

# ----------------------------------------------------------------- tunes ----

# beep NAME SECONDS FREQUENCY: one note of a small computer.
beep() {
    layer "$1" synth "$2" square "$3" gain -8 lowpass 3200 \
        fade t 0.004 "$2" 0.02
}

# brass NAME SECONDS FREQUENCY: one note of a small brass band.
brass() {
    layer "$1.a" synth "$2" sawtooth "$3" gain -8
    layer "$1.b" synth "$2" sawtooth "$(sum "$3" 2.5)" gain -8
    run_sox -m -v 0.5 "$work/$1.a.wav" -v 0.5 "$work/$1.b.wav" \
        -b 32 "$work/$1.wav" lowpass 2600 fade q 0.015 "$2" 0.06
}

# beep: pleased with itself, up, a look around, and up again.
beep b1 0.11 523.25
beep b2 0.11 622.25
beep b3 0.11 783.99
beep b4 0.17 739.99
beep b5 0.11 783.99
beep b6 0.36 1046.50
mix beep_dry b1@0*0.6 b2@0.12*0.6 b3@0.24*0.6 b4@0.40*0.6 b5@0.60*0.6 \
    b6@0.74*0.6
change beep beep_dry echo 0.9 0.7 70 0.2
finish beep beep 8000 8 120 -7

# set: three pickups and a held chord.
brass s1 0.13 392.00
brass s2 0.13 392.00
brass s3 0.13 523.25
brass s4 0.22 466.16
brass l1 0.60 523.25
brass l2 0.60 659.26
brass l3 0.60 783.99
brass l4 0.60 261.63
mix set_dry s1@0*0.6 s2@0.15*0.6 s3@0.30*0.6 s4@0.46*0.6 \
    l1@0.70*0.3 l2@0.70*0.3 l3@0.70*0.35 l4@0.70*0.3
change set set_dry compand 0.005,0.1 6:-40,-30,-20,-12,0,-5 0 -90 0.005 \
    reverb 30 50 60 100 0 -4
finish set set 11025 8 140 -1

# gameover: the band walks down the stairs, the last note sags, and the bill
# is announced.
brass g1 0.21 349.23
brass g2 0.21 311.13
brass g3 0.21 277.18
brass g4_held 0.72 246.94
change g4 g4_held bend 0.15,-500,0.55 tremolo 7 45 fade q 0.01 0.72 0.25
mix gameover_tune g1@0*0.7 g2@0.23*0.7 g3@0.46*0.7 g4@0.69*0.7
change gameover_band gameover_tune reverb 25 50 50 100 0 -6 gain -n -4
speak gameover_line 2.50 en-us+m7 155 25 "Game over. I'll send you the bill."
mix gameover gameover_band@0*0.8 gameover_line@1.45*0.9
finish gameover gameover 11025 8 400 -0.7

# woody: knuckles on a hollow log, then a giggle.
layer knock synth 0.07 sine 780/620 gain -4 fade l 0 0.07 0.07
layer knock_hollow synth 0.07 sine 1710 gain -10 fade l 0 0.07 0.06
noise tap 0.012 61 whitenoise lowpass 3500 fade l 0 0.012 0.012
mix wood knock@0*0.6 knock_hollow@0*0.3 tap@0*0.5
change wood_high wood speed 1.2
speak giggle 0.73 en-us+f4 230 90 "heh heh heh!"
mix woody wood@0*0.9 wood@0.09*0.7 wood@0.18*0.9 wood_high@0.33*0.9 \
    wood@0.45*0.8 giggle@0.57*0.8
finish woody woody 8012 16 130 -1

# ---------------------------------------------------------------- speech ----

speak contempt 2.19 en-gb+m3 160 28 "Oh please, the wind did the work."
finish contempt contempt 11025 8 220 -0.7

speak thatsall 1.59 en-us+m1 185 50 "That's all, mind the holes."
finish thatsall thatsall 11025 8 160 -0.7

speak whatsup 2.59 en-us+m1 160 55 "What's up? Lovely weather for craters."
finish whatsup whatsup 11025 8 260 -0.7

# --------------------------------------------------- the encoded greeting ----

# daffy: a spring lets go and a small voice calls.
layer spring synth 0.30 sine 240/1300 gain -6 tremolo 32 60 \
    fade t 0.005 0.30 0.12
speak daffy_line 1.45 en-us+f2 204 85 "Yoo hoo, helmets on!"
mix daffy spring@0*0.5 daffy_line@0.15*0.9

le16() {
    printf '%b' "$(printf '\\x%02x\\x%02x' $(($1 & 255)) $(($1 >> 8 & 255)))"
}

le32() {
    le16 $(($1 & 65535))
    le16 $(($1 >> 16 & 65535))
}

# finish_mp3 LAYER FILE RATE HUNDREDTHS PEAK KBPS: writes FILE.wav as an MPEG
# Layer 3 stream in a RIFF/WAVE file.  Encoder and decoder together delay the
# sound, so it is cut shorter by that delay and ends within the length that the
# fact chunk gives.  A frame of silence follows, because some decoders leave
# out the last frame.
finish_mp3() {
    local name=$1 file=$2 rate=$3 hundredths=$4 peak=$5 kbps=$6
    local delay=1105 frame_samples=576
    local count sound block data_size pad riff_size
    count=$(frames "$rate" "$hundredths")
    sound=$((count - delay))
    run_sox -V1 "$work/$name.wav" -b 16 "$work/$name.pcm.wav" \
        gain -n -6 highpass 30 rate -h "$rate" pad 0 2 trim 0 "${sound}s" \
        fade t 0.001 "${sound}s" 0.008 gain -n "$peak" \
        pad 0 "${frame_samples}s"
    # No tag frame, no bit reservoir: every frame stands alone.
    lame --quiet -t --cbr -b "$kbps" --nores -m m -q 0 --resample "$rate" \
        "$work/$name.pcm.wav" "$work/$name.mp3"

    # Each frame holds 72 * bit rate / sample rate bytes; some frames have a
    # padding byte more to make up for the fraction.
    block=$((72 * kbps * 1000 / rate))
    data_size=$(stat -c %s "$work/$name.mp3")
    pad=$((data_size % 2))
    # "WAVE", fmt (8 + 30), fact (8 + 4), data (8 + stream + pad).
    riff_size=$((4 + 38 + 12 + 8 + data_size + pad))
    {
        printf RIFF; le32 "$riff_size"; printf WAVE
        printf 'fmt '; le32 30
        le16 85                         # format tag: MPEG Layer 3
        le16 1                          # channels
        le32 "$rate"
        le32 $((kbps * 125))            # average bytes per second
        le16 1                          # block align
        le16 0                          # bits per sample
        le16 12                         # bytes that follow
        le16 1                          # wID: MPEG
        le32 0                          # fdwFlags: padding where needed
        le16 "$block"                   # nBlockSize
        le16 1                          # nFramesPerBlock
        le16 "$delay"                   # nCodecDelay
        printf fact; le32 4; le32 "$count"
        printf data; le32 "$data_size"
        cat "$work/$name.mp3"
        if [ "$pad" = 1 ]; then
            printf '\x00'
        fi
    } >"$out_dir/$file.wav"
}
finish_mp3 daffy daffy 11025 170 -2 32
