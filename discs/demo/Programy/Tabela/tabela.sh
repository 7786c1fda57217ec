#!/bin/sh
# Tabela zanurzeń: rozpisuje zejście na podaną głębokość.
# Użycie: tabela.sh [MIEJSCE] [METRY]

miejsce=${1:-Rów Latimerii}
metry=${2:-1000}
case $metry in *[!0-9]* | '') metry=1000 ;; esac

plan=$(mktemp) || exit 1
trap 'rm -f "$plan"' EXIT

{
    printf 'PLAN ZANURZENIA\n\nMiejsce:    %s\nDno:        %s m\nOpadanie:   30 m na minutę\n\n' "$miejsce" "$metry"
    printf '  metry   minuta   atmosfery   za szybą\n'
    krok=$(((metry + 9) / 10))
    m=0
    while [ "$krok" -gt 0 ]; do
        if [ "$m" -le 40 ]; then widok='błękit i ławice'
        elif [ "$m" -le 200 ]; then widok='zieleń, coraz ciemniej'
        elif [ "$m" -le 1000 ]; then widok='granat, pierwsze światełka'
        elif [ "$m" -le 4000 ]; then widok='czerń i iskry'
        else widok='cisza'; fi
        printf '%7d  %7d  %10d   %s\n' "$m" $((m / 30)) $((m / 10 + 1)) "$widok"
        [ "$m" -ge "$metry" ] && break
        m=$((m + krok))
        [ "$m" -gt "$metry" ] && m=$metry
    done
    printf '\nBalast zrzucić na dnie. Herbatę wypić wcześniej.\n'
} >"$plan"

tytul='Tabela zanurzeń'
if command -v zenity >/dev/null; then
    zenity --text-info --title="$tytul" --filename="$plan" --font=monospace --width=560 --height=460
elif command -v kdialog >/dev/null; then
    kdialog --title "$tytul" --textbox "$plan" 560 460
else
    # Skrypt w cudzysłowie pojedynczym czyta plik dopiero w terminalu.
    # shellcheck disable=SC2016
    czytaj='cat "$1"; printf "\n[Enter zamyka okno] "; read -r _'
    for terminal in x-terminal-emulator xterm konsole gnome-terminal; do
        command -v "$terminal" >/dev/null && "$terminal" -e sh -c "$czytaj" sh "$plan" && exit 0
    done
    # Stare okienko nie zna polskich liter.
    iconv -f UTF-8 -t ASCII//TRANSLIT "$plan" | xmessage -title 'Tabela zanurzen' -fn fixed -center -file -
fi
exit 0
