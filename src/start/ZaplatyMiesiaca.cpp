#include "start/ZaplatyMiesiaca.h"
#include "bank/ZleceniaPrzelewow.h"
#include "common/Daty.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include "zus/WykonanieKedu.h"
#include <algorithm>
#include <initializer_list>
#include <QSet>

namespace tornel::start {

using schemat::PIT4;
using schemat::PLACE;
using schemat::PLB;
using schemat::WYKONANE;
using schemat::ZUS;

namespace {

using Klucz = std::pair<qint64, QString>;

/// The sum of columns of the month's header.
Waluta sumaNaglowka(Sesja& sesja, RokMies miesiac, std::initializer_list<Kolumna> kolumny) {
    Recordset place(PLACE);
    place.Open(sesja.cnPlace, {},
               {{PLACE("Rok"), Kryterium::Operator::Rowne, FormatRoku(miesiac.rok)},
                {PLACE("Mies"), Kryterium::Operator::Rowne, FormatMiesiaca(miesiac.mies)}});
    Waluta suma;
    for (const store::Wiersz w : place.wiersze())
        for (const Kolumna k : kolumny) suma += w.kwota(k);
    return suma;
}

void dodajWyslane(Sesja& sesja, RokMies miesiac, QSet<Klucz>& zrobione) {
    PrzygotowaneZapytanie wyslane(sesja.cnPlace, Zapytanie(PLB)
                                                     .kolumny(PLB("PRC_ID"), PLB("LISTA"))
                                                     .zTabel({Sesja::nazwaMiesiaca("PLB", miesiac)})
                                                     .gdzie(PLB("WYS_MCS") == Wartosc(QStringLiteral("T"))));
    for (auto w = wyslane.uruchom(); w.nastepny();)
        zrobione.insert({w.liczba(PLB("PRC_ID")), w.tekst(PLB("LISTA"))});
}

void dodajWydrukowane(Sesja& sesja, RokMies miesiac, QSet<Klucz>& zrobione) {
    PrzygotowaneZapytanie wydrukowane(
        sesja.cnPlace, Zapytanie(WYKONANE)
                           .kolumny(WYKONANE("KOMU"), WYKONANE("LISTA"), WYKONANE("ZRODLO"))
                           .gdzie(WYKONANE("ROKMIES") == Wartosc(miesiac.klucz()))
                           .gdzie(WYKONANE("RODZAJ") == Wartosc(bank::wykonanie::Przelew.kod.toString())));
    for (auto w = wydrukowane.uruchom(); w.nastepny();)
        if (w.utf8(WYKONANE("ZRODLO")).empty()) // not those of contracts
            zrobione.insert({w.liczba(WYKONANE("KOMU")), w.tekst(WYKONANE("LISTA"))});
}

} // namespace

qsizetype PrzelewyZrobione(Sesja& sesja, RokMies miesiac, const QList<KluczListy>& wiersze) {
    QSet<Klucz> zrobione;
    dodajWyslane(sesja, miesiac, zrobione);
    dodajWydrukowane(sesja, miesiac, zrobione);
    return std::ranges::count_if(wiersze, [&](const KluczListy& k) {
        return zrobione.contains({k.prcId, k.lista});
    });
}

Zaplata PodatekMiesiaca(Sesja& sesja, RokMies miesiac) {
    Recordset deklaracje(PIT4);
    deklaracje.Open(sesja.cnPlace, {},
                    {{PIT4("Rok"), Kryterium::Operator::Rowne, qint64{miesiac.rok}},
                     {PIT4("Mies"), Kryterium::Operator::Rowne, qint64{miesiac.mies}}});
    return {sumaNaglowka(sesja, miesiac, {PLACE("sum_podat")}), deklaracje.RecordCount() > 0};
}

Zaplata SkladkiMiesiaca(Sesja& sesja, RokMies miesiac) {
    Recordset rozliczenia(ZUS);
    rozliczenia.Open(sesja.cnPlace, {}, {{ZUS("ROKMIES"), Kryterium::Operator::Rowne, miesiac.klucz()}});
    if (rozliczenia.RecordCount() == 0)
        return {sumaNaglowka(sesja, miesiac,
                             {PLACE("sum_feprd"), PLACE("sum_frprd"), PLACE("sum_feprc"), PLACE("sum_frprc"),
                              PLACE("sum_fc"), PLACE("sum_fw"), PLACE("sum_ubzdr"), PLACE("sum_fp"),
                              PLACE("sum_fgsp")})};
    Zaplata wynik{{}, true};
    for (const store::Wiersz w : rozliczenia.wiersze()) wynik.kwota += w.kwota(ZUS("do_zaplaty"));
    return wynik;
}

QString RaportyZapisane(Sesja& sesja, RokMies miesiac) {
    QList<Wykonanie> raporty =
        Wykonane(sesja).szukaj({.rodzaj = zus::kWykonanieKedu.kod.toString(), .miesiac = miesiac});
    // A registration document is noted under the month in which it was written.
    raporty.removeIf([](const Wykonanie& w) { return !w.zrodlo.startsWith(QLatin1Char('R')); });
    return NapisWykonania(zus::kWykonanieKedu, raporty);
}

} // namespace tornel::start
