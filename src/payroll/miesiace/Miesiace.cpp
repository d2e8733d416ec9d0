#include "payroll/miesiace/Miesiace.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include "store/Struktura.h"

namespace tornel::payroll {

using schemat::PLACE;
using schemat::SZ_PL;

void WymagajTabeli(Sesja& sesja, const QString& nazwa) {
    if (!sesja.cnPlace.jestTabela(nazwa))
        throw Blad(
            QStringLiteral("W bazie danych brakuje tabeli %1, choć jej miesiąc jest na liście.").arg(nazwa));
}

bool JestMiesiac(Sesja& sesja, RokMies miesiac, std::initializer_list<std::string_view> tabele) {
    if (!sesja.rsPLACE.otwarty()) sesja.OtworzNaglowki();
    if (!sesja.rsPLACE.szukaj(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies))) return false;
    for (const std::string_view tabela : tabele) WymagajTabeli(sesja, Sesja::nazwaMiesiaca(tabela, miesiac));
    return true;
}

Miesiace::Miesiace(Otoczenie& otoczenie) : o_(otoczenie) { o_.sesja.OtworzNaglowki(); }

QList<WierszMiesiaca> Miesiace::Wczytaj_liste() const {
    QList<WierszMiesiaca> wynik;
    for (const Wiersz place : o_.sesja.rsPLACE.wiersze())
        wynik.append({{place.tekst(PLACE("Rok")).toInt(), place.tekst(PLACE("Mies")).toInt()},
                      place.flaga(PLACE("akc"))});
    return wynik;
}

bool Miesiace::Ustaw(RokMies miesiac) { return o_.sesja.ZnajdzMiesiac(miesiac); }

void Miesiace::wymagaj(RokMies miesiac) {
    // A month with a damaged header can still be blocked or deleted: PLACE alone decides.
    (void)Ustaw(miesiac);
    if (!o_.sesja.rsPLACE.naWierszu())
        throw Blad(QStringLiteral("Nie ma miesiąca %1.").arg(NapisMiesiaca(miesiac.rok, miesiac.mies)));
}

void Miesiace::dodajNaglowki(RokMies miesiac) {
    for (Recordset* rs : o_.sesja.naglowki) {
        rs->AddNewZero();
        // The position is set before the sorted columns, which move the row and take the position with it.
        rs->ustaw(rs->tabela().nr(0), FormatRoku(miesiac.rok));
        rs->ustaw(rs->tabela().nr(1), FormatMiesiaca(miesiac.mies));
    }
    o_.sesja.rsPLACE.ustawFlage(PLACE("akc"), false);
}

void Miesiace::ZapiszAktualneDane() {
    Sesja& s = o_.sesja;
    o_.skladniki.maski().naMiesiac(s.rsPLACE);
    for (int nr = 1; nr <= 45; ++nr) {
        const bool dodatni = nr <= 30;
        s.rsPLACEN.ustaw(schemat::NazwaSkladnikaMiesiaca(nr),
                         dodatni ? o_.skladniki.SkNazwa(nr) : o_.skladniki.SkUNazwa(nr - 30));
        if (dodatni) s.rsPLACEK.ustaw(schemat::KodZUSMiesiaca(nr), o_.skladniki.SkKodZUS(nr));
    }
}

std::optional<RokMies> Miesiace::Nowy_miesiac(const WyborMiesiaca& wybor) {
    if (!o_.rozmowa.pytanie(QStringLiteral("Czy na pewno utworzyć nową listę ?"))) return std::nullopt;
    const std::optional<RokMies> miesiac = wybor();
    if (!miesiac) return std::nullopt;
    if (miesiac->mies < 1 || miesiac->mies > 12 || miesiac->rok < 1990 || miesiac->rok > 2099)
        throw Blad(QStringLiteral("Nie ma miesiąca %1 roku %2.").arg(miesiac->mies).arg(miesiac->rok));

    Sesja& s = o_.sesja;
    const Zakladka tu = s.rsPLACE.Bookmark();
    (void)Ustaw(*miesiac);
    if (s.rsPLACE.naWierszu()) {
        s.rsPLACE.Bookmark(tu);
        o_.rozmowa.komunikat(QStringLiteral("Podany miesiąc już istnieje!"), Styl::Wykrzyknik);
        return std::nullopt;
    }
    try {
        Transakcja transakcja(s.cnPlace, QStringLiteral("Nowy miesiąc %1").arg(miesiac->napis()));
        dodajNaglowki(*miesiac);
        ZapiszAktualneDane();
        s.naglowki.UpdateBatch(transakcja);
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca)
            UtworzTabele(s.cnPlace, *tabela, Sesja::nazwaMiesiaca(tabela->nazwa, *miesiac));
        transakcja.zatwierdz();
    } catch (...) {
        s.OtworzNaglowki();
        throw;
    }
    return miesiac;
}

bool Miesiace::Usun_miesiac(RokMies miesiac) {
    Sesja& s = o_.sesja;
    wymagaj(miesiac);
    if (s.rsPLACE.flaga(PLACE("akc"))) {
        o_.rozmowa.komunikat(QStringLiteral("Miesiąc jest zablokowany i nie można go usunąć"),
                             Styl::Wykrzyknik);
        return false;
    }
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno chcesz usunąć miesiąc ") +
                                     FormatMiesiaca(miesiac.mies) + QLatin1Char('-') +
                                     FormatRoku(miesiac.rok) + QStringLiteral(" z listy ?")))
        return false;
    s.ZamknijMiesiac();
    try {
        Transakcja transakcja(s.cnPlace, QStringLiteral("Usunięcie miesiąca %1").arg(miesiac.napis()));
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca)
            if (const QString nazwa = Sesja::nazwaMiesiaca(tabela->nazwa, miesiac);
                s.cnPlace.jestTabela(nazwa))
                UsunTabele(s.cnPlace, nazwa);
        for (const Kolumna rokMies : {schemat::ZASILEK("ROKMIES"), schemat::WPISANE("ROKMIES")}) {
            Recordset wiersze(*rokMies.tabela);
            wiersze.Open(s.cnPlace, {}, {{rokMies, Kryterium::Operator::Rowne, miesiac.klucz()}});
            while (wiersze.naWierszu()) wiersze.Delete();
            wiersze.UpdateBatch(transakcja);
        }
        wymagaj(miesiac);
        s.naglowki.Delete();
        s.naglowki.UpdateBatch(transakcja);
        transakcja.zatwierdz();
    } catch (...) {
        s.OtworzNaglowki();
        throw;
    }
    return true;
}

bool Miesiace::BlokadaMies(RokMies miesiac) {
    Sesja& s = o_.sesja;
    wymagaj(miesiac);
    const bool zablokowany = s.rsPLACE.flaga(PLACE("akc"));
    if (zablokowany) {
        if (!o_.rozmowa.pytanie(QStringLiteral("Czy napewno odblokować wybrany miesiąc?"))) return false;
    } else {
        if (!o_.rozmowa.pytanie(QStringLiteral("Czy napewno zablokować wybrany miesiąc?"))) return false;
        if (const QString uwagi = doUwagi(miesiac);
            !uwagi.isEmpty() &&
            !o_.rozmowa.pytanie(
                QStringLiteral("Lista płac miesiąca %1 wymaga uwagi.\n%2\nCzy mimo to zablokować miesiąc?")
                    .arg(miesiac.napis(), uwagi)))
            return false;
        if (o_.rozmowa.pytanie(
                QStringLiteral("Czy zapisać aktualne dane o składnikach (nazwa składnika, czy brutto, do "
                               "ZUS, do ubezpieczenia "
                               "zdrowotnego, czy aktywny, kody ZUS) do listy płac za wybrany miesiąc?")))
            ZapiszAktualneDane();
    }
    s.rsPLACE.ustawFlage(PLACE("akc"), !zablokowany);
    s.naglowki.UpdateBatch(s.cnPlace, (zablokowany ? QStringLiteral("Odblokowanie miesiąca %1")
                                                   : QStringLiteral("Blokada miesiąca %1"))
                                          .arg(miesiac.napis()));
    return true;
}

QString Miesiace::doUwagi(RokMies miesiac) const {
    try {
        return OpisDoUwagi(PrzejrzyjMiesiac(o_, miesiac));
    } catch (const BladBazy&) {
        throw;
    } catch (const Blad& blad) {
        return blad.komunikat(); // a damaged month is told as such
    }
}

void Miesiace::ZapiszOpis(RokMies miesiac, const QString& opis) {
    wymagaj(miesiac);
    o_.sesja.rsPLACE.ustaw(PLACE("inf_opis"), opis);
    o_.sesja.rsPLACE.UpdateBatch(QStringLiteral("Opis miesiąca %1").arg(miesiac.napis()));
}

} // namespace tornel::payroll
