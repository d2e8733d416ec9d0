#!/usr/bin/env python3
"""Guards the house rules that a compiler does not know.

    porzadek.py KORZEN rozmiary    files over 500 lines, functions over 60
    porzadek.py KORZEN sql         SQL text outside src/store

What is still allowed stands in wyjatki-<check>.txt beside this script, a line each: a place and, for sizes, the
number of lines that it may have at most. An entry that is no longer needed is a failure too, so that the lists
only shrink.
"""
import re
import sys
from pathlib import Path

FOLDERY = ("src", "tests", "bench", "tools")
LINIE_PLIKU = 500
LINIE_FUNKCJI = 60

# A comment, a text (raw ones too) or a character: what stands in it is no code.
NIE_KOD = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<s>[^(\s]*)\(.*?\)(?P=s)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Fa-f])\'(?:\\.|[^\'\\\n])+\'', re.S)
SQL = re.compile(
    r"\b(SELECT\b.+\bFROM|INSERT\s+(OR\s+\w+\s+)?INTO|UPDATE\s+\S+\s+SET|DELETE\s+FROM|(CREATE|DROP|ALTER)\s+"
    r"(TABLE|INDEX|UNIQUE)|PRAGMA|SAVEPOINT|ROLLBACK|ORDER\s+BY|GROUP\s+BY|LEFT\s+JOIN|INNER\s+JOIN|WHERE\s+\S+\s*=)",
    re.S)


def pliki(korzen, foldery, koncowki):
    for folder in foldery:
        for plik in sorted((korzen / folder).rglob("*")):
            if plik.suffix in koncowki and plik.is_file():
                yield plik.relative_to(korzen).as_posix(), plik.read_text(encoding="utf-8")


def sam_kod(tresc):
    """The text with comments and literals blanked, lines kept."""
    return NIE_KOD.sub(lambda m: re.sub(r"[^\n]", " ", m.group()), tresc)


def funkcje(tresc):
    """Name, first and last line of each function of a formatted source."""
    kod = re.sub(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", lambda m: re.sub(r"[^\n]", " ", m.group()), sam_kod(tresc), flags=re.M)
    stos = []  # of each open brace: kind, name, first line
    poczatek = 0  # of the statement in work
    for znak in re.finditer(r"[{};]", kod):
        miejsce = znak.start()
        instrukcja = kod[poczatek:miejsce].strip()
        linia = kod.count("\n", 0, miejsce - len(kod[poczatek:miejsce].lstrip())) + 1
        if znak.group() == "{":
            w_funkcji = any(rodzaj == "funkcja" for rodzaj, _, _ in stos)
            rodzaj = "blok"
            if not w_funkcji and re.match(r"(export\s+|inline\s+)*(namespace|extern)\b", instrukcja):
                rodzaj = "zakres"
            elif not w_funkcji and re.search(r"^(template\s*<.*>\s*|\w+\s+)*\b(class|struct|union|enum)\b[^()=]*$",
                                             instrukcja, re.S):
                rodzaj = "zakres"
            elif not w_funkcji and poczatkowa_klamra(instrukcja):
                rodzaj = "funkcja"
            stos.append((rodzaj, instrukcja, linia))
            if rodzaj != "blok":
                poczatek = miejsce + 1
            continue
        if znak.group() == "}" and stos:
            rodzaj, naglowek, pierwsza = stos.pop()
            if rodzaj == "funkcja":
                nazwa = re.search(r"([\w:~]+(?:operator\W+)?)\s*\(([^)]*)", naglowek)
                argumenty = re.sub(r"\s+", "", nazwa.group(2)) if nazwa and nazwa.group(1).startswith("TEST") else ""
                yield (nazwa.group(1) if nazwa else naglowek) + (f"({argumenty})" if argumenty else ""), pierwsza, \
                    kod.count("\n", 0, miejsce) + 1
            if rodzaj == "blok" and not any(r == "funkcja" for r, _, _ in stos):
                continue  # an initializer: the statement goes on
        poczatek = miejsce + 1


def poczatkowa_klamra(instrukcja):
    """Whether a brace behind this text opens a body and not an initializer."""
    if ")" not in instrukcja or re.search(r"(=|\breturn|,|\()\s*$", instrukcja):
        return False
    po = instrukcja[instrukcja.rindex(")") + 1:]
    if re.fullmatch(r"\s*(const|noexcept|override|final|mutable|&|&&|\s|->[\w:<>&*\s]+|requires.*)*", po, re.S):
        return not re.search(r"=\s*(\w|::|<|>)*\(.*$", instrukcja, re.S) or "operator" in instrukcja
    # Behind the last member initializer, whose own braces were passed.
    return bool(re.search(r"[}]\s*$", po))


def rozmiary(korzen):
    for plik, tresc in pliki(korzen, FOLDERY, {".h", ".cpp", ".py"}):
        linie = tresc.count("\n")
        if linie > LINIE_PLIKU:
            yield plik, linie, f"{plik}: {linie} lines, {LINIE_PLIKU} are allowed"
        if plik.endswith(".py"):
            continue
        for nazwa, od, dokad in funkcje(tresc):
            if dokad - od + 1 > LINIE_FUNKCJI:
                ile = dokad - od + 1
                yield f"{plik}:{nazwa}", ile, f"{plik}:{od}: {nazwa} has {ile} lines, {LINIE_FUNKCJI} are allowed"


def sql(korzen):
    for plik, tresc in pliki(korzen, ("src",), {".h", ".cpp"}):
        if plik.startswith("src/store/"):
            continue
        teksty = [m for m in NIE_KOD.finditer(tresc) if m.group()[0] in '"R']
        # Adjacent literals are one text.
        for m in re.finditer(SQL, " ".join(t.group() for t in teksty)):
            yield plik, 0, f"{plik}: SQL outside src/store: {' '.join(m.group().split())[:60]}"
            break


def wyjatki(sciezka):
    wynik = {}
    for wiersz in sciezka.read_text(encoding="utf-8").splitlines():
        if wiersz.strip() and not wiersz.startswith("#"):
            miejsce, _, ile = wiersz.partition(" ")
            wynik[miejsce] = int(ile or 0)
    return wynik


def main():
    korzen, ktory = Path(sys.argv[1]), sys.argv[2]
    dozwolone = wyjatki(Path(__file__).with_name(f"wyjatki-{ktory}.txt"))
    bledy, potrzebne = [], set()
    for miejsce, ile, blad in {"rozmiary": rozmiary, "sql": sql}[ktory](korzen):
        potrzebne.add(miejsce)
        if miejsce not in dozwolone:
            bledy.append(blad)
        elif ile > dozwolone[miejsce]:
            bledy.append(f"{blad}, {dozwolone[miejsce]} by way of exception")
    bledy += [f"{m}: the exception is no longer needed, take it off the list" for m in dozwolone if m not in potrzebne]
    print("\n".join(bledy) if bledy else "in order")
    return 1 if bledy else 0


if __name__ == "__main__":
    sys.exit(main())
