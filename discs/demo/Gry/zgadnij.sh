#!/bin/sh
# Zgadnij głębokość: gra w okienku (zenity, kdialog, xmessage) albo w terminalu.

tytul='Zgadnij głębokość'

losuj() {
    od -An -N2 -tu2 /dev/urandom | awk '{ print 10 + ($1 % 100) * 10 }'
}

pytaj() {
    case $okna in
        zenity) zenity --entry --title="$tytul" --text="$1" ;;
        kdialog) kdialog --title "$tytul" --inputbox "$1" ;;
        xmessage) ustaw "$1" ;;
        *) printf '%s ' "$1" >&2; read -r odpowiedz && printf '%s\n' "$odpowiedz" ;;
    esac
}

# Stare okienko nie zna polskich liter; ostatni argument to tekst.
stary() {
    for tekst; do :; done
    tekst=$(printf '%s' "$tekst" | iconv -f UTF-8 -t ASCII//TRANSLIT)
    if [ $# -eq 3 ]; then xmessage -title 'Zgadnij glebokosc' -fn fixed -center "$1" "$2" "$tekst"
    else xmessage -title 'Zgadnij glebokosc' -fn fixed -center "$tekst"; fi
}

# Okienko bez pola do pisania: liczbę ustawia się guzikami.
ustaw() {
    wartosc=500
    while :; do
        stary -buttons '-100:11,-10:12,+10:13,+100:14,Mierz:15,Koniec:16' "$1

        $wartosc m" >/dev/null
        case $? in
            11) wartosc=$((wartosc - 100)) ;;
            12) wartosc=$((wartosc - 10)) ;;
            13) wartosc=$((wartosc + 10)) ;;
            14) wartosc=$((wartosc + 100)) ;;
            15) printf '%s\n' "$wartosc"; return 0 ;;
            *) return 1 ;;
        esac
        [ "$wartosc" -lt 10 ] && wartosc=10
        [ "$wartosc" -gt 1000 ] && wartosc=1000
    done
}

powiedz() {
    case $okna in
        zenity) zenity --info --title="$tytul" --text="$1" ;;
        kdialog) kdialog --title "$tytul" --msgbox "$1" ;;
        xmessage) stary "$1" ;;
        *) printf '%s\n' "$1"; sleep 2 ;;
    esac
}

graj() {
    dno=$(losuj)
    proba=0
    wiadomosc='Od 10 do 1000 metrów, co dziesięć. Ile metrów pod stępką?'
    while metry=$(pytaj "$wiadomosc"); do
        case $metry in *[!0-9]* | '') wiadomosc='Sonar rozumie tylko liczby. Ile metrów?'; continue ;; esac
        proba=$((proba + 1))
        if [ "$metry" -eq "$dno" ]; then
            powiedz "Stuk! Dno na $dno m, prób: $proba."
            return
        elif [ "$metry" -lt "$dno" ]; then
            wiadomosc="Próba $proba: $metry m to za płytko. Ile metrów?"
        else
            wiadomosc="Próba $proba: $metry m to za głęboko. Ile metrów?"
        fi
    done
}

if [ "$1" = --terminal ]; then okna=terminal
elif command -v zenity >/dev/null; then okna=zenity
elif command -v kdialog >/dev/null; then okna=kdialog
else
    for terminal in x-terminal-emulator xterm konsole gnome-terminal; do
        command -v "$terminal" >/dev/null && exec "$terminal" -e "$0" --terminal
    done
    okna=xmessage
fi
graj
