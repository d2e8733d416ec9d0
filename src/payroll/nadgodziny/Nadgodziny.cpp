#include "payroll/nadgodziny/Nadgodziny.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "payroll/nadgodziny/RownaniaNadgodzin.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include "store/Struktura.h"

namespace tornel::payroll {

using schemat::NADG;

Nadgodziny::Nadgodziny(Otoczenie& otoczenie) : o_(otoczenie) { otworz(); }

void Nadgodziny::otworz() {
    o_.sesja.rsNADG.Open(o_.sesja.cnPlace);
    o_.sesja.rsNADG.Sort({NADG("Rok"), NADG("Mies")});
}

QList<RokMies> Nadgodziny::WczytajListe() const {
    QList<RokMies> wynik;
    Recordset& rs = o_.sesja.rsNADG;
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
        wynik.append({rs.tekst(NADG("Rok")).toInt(), rs.tekst(NADG("Mies")).toInt()});
    rs.MoveFirst();
    return wynik;
}

bool Nadgodziny::znajdz(RokMies miesiac) {
    return o_.sesja.rsNADG.Znajdz(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies));
}

std::optional<RokMies> Nadgodziny::NowaLista(const WyborMiesiaca& wybor) {
    if (!o_.rozmowa.pytanie(QStringLiteral("Czy na pewno utworzyć nową listę ?"))) return std::nullopt;
    const std::optional<RokMies> miesiac = wybor();
    if (!miesiac) return std::nullopt;
    if (miesiac->mies < 1 || miesiac->mies > 12 || miesiac->rok < 1990 || miesiac->rok > 2099)
        throw Blad(QStringLiteral("Nie ma miesiąca %1 roku %2.").arg(miesiac->mies).arg(miesiac->rok));
    if (znajdz(*miesiac)) {
        o_.rozmowa.komunikat(QStringLiteral("Podany miesiąc już istnieje!"), Styl::Wykrzyknik);
        return std::nullopt;
    }
    Sesja& s = o_.sesja;
    try {
        Transakcja transakcja(s.cnPlace, QStringLiteral("Nowa lista nadgodzin %1").arg(miesiac->napis()));
        s.rsNADG.AddNewZero();
        s.rsNADG.ustaw(NADG("Rok"), FormatRoku(miesiac->rok));
        s.rsNADG.ustaw(NADG("Mies"), FormatMiesiaca(miesiac->mies));
        RownaniaNadgodzin::zeStalych(o_.stale).naNaglowek(s.rsNADG);
        s.rsNADG.UpdateBatch(transakcja);
        for (const TabelaDef* tabela : schemat::TabeleNadgodzin)
            UtworzTabele(s.cnPlace, *tabela,
                         Sesja::nazwaMiesiaca(tabela->nazwa, miesiac->rok, miesiac->mies));
        transakcja.zatwierdz();
    } catch (...) {
        otworz();
        throw;
    }
    return miesiac;
}

bool Nadgodziny::UsunListe(RokMies miesiac) {
    if (!znajdz(miesiac))
        throw Blad(QStringLiteral("Nie ma listy nadgodzin za miesiąc %1.")
                       .arg(NapisMiesiaca(miesiac.rok, miesiac.mies)));
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć zaznaczony miesiąc ?")))
        return false;
    Sesja& s = o_.sesja;
    try {
        Transakcja transakcja(s.cnPlace, QStringLiteral("Usunięcie listy nadgodzin %1").arg(miesiac.napis()));
        for (const TabelaDef* tabela : schemat::TabeleNadgodzin)
            if (const QString nazwa = Sesja::nazwaMiesiaca(tabela->nazwa, miesiac.rok, miesiac.mies);
                s.cnPlace.jestTabela(nazwa))
                UsunTabele(s.cnPlace, nazwa);
        s.rsNADG.Delete();
        s.rsNADG.UpdateBatch(transakcja);
        transakcja.zatwierdz();
    } catch (...) {
        otworz();
        throw;
    }
    return true;
}

} // namespace tornel::payroll
