#include "payroll/lista/KontrolaWierszy.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include <QStringList>

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLS;

namespace {

const QString kNiePoliczony = QStringLiteral(
    "Wiersz nie jest policzony: brutto, dodatki lub potrącenia nie wynikają z jego składników.");
const QString kPrzelew = QStringLiteral("Kwota przelewu jest większa od kwoty do wypłaty.");

/// "Nie policzone: 12 (nr 001, 002, ...)", nothing for none.
QString opisRodzaju(const QString& nazwa, const QList<WierszDoUwagi>& wiersze, bool StanWiersza::*cecha) {
    constexpr qsizetype kNajwiecejNumerow = 10;
    QStringList numery;
    qsizetype ile = 0;
    for (const WierszDoUwagi& w : wiersze) {
        if (!(w.stan.*cecha)) continue;
        if (ile < kNajwiecejNumerow) numery.append(FormatNumeru(w.prcId));
        ++ile;
    }
    if (ile == 0) return {};
    return QStringLiteral("%1: %2 (nr %3%4)")
        .arg(nazwa, QString::number(ile), numery.join(QStringLiteral(", ")),
             ile > kNajwiecejNumerow ? QStringLiteral(", ...") : QString());
}

/// The positions of a month that need not be open; the header's position stays.
Pozycje pozycjeMiesiaca(Otoczenie& o, RokMies miesiac) {
    Recordset& place = o.sesja.rsPLACE;
    const Zakladka tu = place.Bookmark();
    (void)place.Znajdz(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies));
    const Maski katalog = o.skladniki.maski();
    const Maski maski = place.flaga(schemat::PLACE("akc")) ? Maski::zMiesiaca(place) : katalog;
    place.Bookmark(tu);
    return PozycjeZMasek(maski, katalog);
}

} // namespace

QString StanWiersza::opis() const {
    QStringList zdania;
    if (niePoliczony) zdania.append(kNiePoliczony);
    if (przelewPonadWyplate) zdania.append(kPrzelew);
    return zdania.join(QLatin1Char(' '));
}

KontrolaWierszy::KontrolaWierszy(const Pozycje& pozycje) {
    for (int i = 1; i <= kDodatnich; ++i)
        if (const PozycjaSkladnika& p = pozycje.dodatnia(i); p.aktMiesiaca)
            skladniki_[p.brutto ? Brutto : Dodatki].push_back({schemat::SP(i), false});
    for (int j = 1; j <= kUjemnych; ++j)
        if (const PozycjaSkladnika& p = pozycje.ujemna(j); p.aktMiesiaca)
            skladniki_[p.brutto ? Brutto : Potracenia].push_back({schemat::SM(j), p.brutto});
}

template <typename A, typename S>
StanWiersza KontrolaWierszy::stan(const A& pla, const S* pls) const {
    std::array<Waluta, Razem> sumy{};
    StanWiersza stan;
    try {
        for (std::size_t i = 0; pls && i < sumy.size(); ++i)
            for (const Skladnik& s : skladniki_[i])
                if (const Waluta kwota = pls->kwota(s.kolumna); !kwota.zero())
                    sumy[i] += s.odejmowany ? -kwota : kwota;
        stan.niePoliczony = pla.kwota(PLA("BRUTTO")) != Round(sumy[Brutto], 2) ||
                            pla.kwota(PLA("DODATKI")) != sumy[Dodatki] ||
                            pla.kwota(PLA("POTRACENIA")) != sumy[Potracenia];
    } catch (const Przepelnienie&) {
        stan.niePoliczony = true; // nothing that is stored can be their sum
    }
    stan.przelewPonadWyplate = pla.kwota(PLA("PRZELEWEM")) > NieMniejNizZero(pla.kwota(PLA("DO_WYPLATY")));
    return stan;
}

StanWiersza KontrolaWierszy::sprawdz(const Wiersz& pla, const std::optional<Wiersz>& pls) const {
    return stan(pla, pls ? &*pls : nullptr);
}

StanWiersza KontrolaWierszy::sprawdz(const WierszeZapytania& pla, const WierszeZapytania* pls) const {
    return stan(pla, pls);
}

void KontrolaWierszy::dodajKolumny(Zapytanie& pla, Zapytanie& pls) const {
    pla.kolumny(PLA("BRUTTO"), PLA("DODATKI"), PLA("POTRACENIA"), PLA("PRZELEWEM"), PLA("DO_WYPLATY"));
    for (const auto& suma : skladniki_)
        for (const Skladnik& s : suma) pls.kolumny(s.kolumna);
}

QList<WierszDoUwagi> PrzejrzyjWiersze(const Pozycje& pozycje, const Recordset& pla, const Recordset& pls) {
    const KontrolaWierszy kontrola(pozycje);
    QList<WierszDoUwagi> wynik;
    for (const Wiersz wiersz : pla.wiersze()) {
        const qint64 prcId = wiersz.liczba(PLA("PRC_ID"));
        const QString lista = wiersz.tekst(PLA("LISTA"));
        const StanWiersza stan = kontrola.sprawdz(wiersz, pls.szukaj(prcId, lista));
        if (stan.wymagaUwagi()) wynik.append({prcId, lista, stan});
    }
    return wynik;
}

QString OpisDoUwagi(const QList<WierszDoUwagi>& wiersze) {
    QStringList linie{
        opisRodzaju(QStringLiteral("Wiersze niepoliczone"), wiersze, &StanWiersza::niePoliczony),
        opisRodzaju(QStringLiteral("Przelew większy od kwoty do wypłaty"), wiersze,
                    &StanWiersza::przelewPonadWyplate),
    };
    linie.removeAll(QString());
    return linie.join(QLatin1Char('\n'));
}

QList<WierszDoUwagi> PrzejrzyjMiesiac(Otoczenie& otoczenie, RokMies miesiac) {
    Sesja& s = otoczenie.sesja;
    if (!JestMiesiac(s, miesiac, {"PLA", "PLS"}))
        throw Blad(QStringLiteral("Nie ma miesiąca %1.").arg(miesiac.napis()));
    const Pozycje pozycje = pozycjeMiesiaca(otoczenie, miesiac);
    Recordset pla(PLA), pls(PLS);
    for (Recordset* rs : {&pla, &pls}) {
        rs->Open(s.cnPlace, Sesja::nazwaMiesiaca(rs->tabela().nazwa, miesiac.rok, miesiac.mies));
        if (rs == &pla) rs->Sort({PLA("PRC_ID"), PLA("LISTA")});
    }
    return PrzejrzyjWiersze(pozycje, pla, pls);
}

LicznikWierszy PoliczWiersze(Otoczenie& otoczenie, RokMies miesiac) {
    Sesja& s = otoczenie.sesja;
    if (!JestMiesiac(s, miesiac, {"PLA", "PLS"}))
        throw Blad(QStringLiteral("Nie ma miesiąca %1.").arg(miesiac.napis()));
    const KontrolaWierszy kontrola(pozycjeMiesiaca(otoczenie, miesiac));
    Zapytanie oPla(PLA), oPls(PLS);
    oPla.kolumny(PLA("PRC_ID"), PLA("LISTA"));
    oPls.kolumny(PLS("PRC_ID"), PLS("LISTA"));
    kontrola.dodajKolumny(oPla, oPls);
    oPla.zTabel({Sesja::nazwaMiesiaca("PLA", miesiac)}).wedlug(PLA("PRC_ID"), PLA("LISTA"));
    oPls.zTabel({Sesja::nazwaMiesiaca("PLS", miesiac)}).wedlug(PLS("PRC_ID"), PLS("LISTA"));
    PrzygotowaneZapytanie pytaniePla(s.cnPlace, oPla), pytaniePls(s.cnPlace, oPls);
    auto pla = pytaniePla.uruchom();
    auto pls = pytaniePls.uruchom();
    LicznikWierszy wynik;
    // Both come in one order, so that each row meets its components without a search.
    const auto kluczPls = [&] { return std::pair(pls.liczba(PLS("PRC_ID")), pls.utf8(PLS("LISTA"))); };
    bool jestPls = pls.nastepny();
    while (pla.nastepny()) {
        const std::pair klucz(pla.liczba(PLA("PRC_ID")), pla.utf8(PLA("LISTA")));
        while (jestPls && kluczPls() < klucz) jestPls = pls.nastepny();
        const StanWiersza stan = kontrola.sprawdz(pla, jestPls && kluczPls() == klucz ? &pls : nullptr);
        ++wynik.wierszy;
        wynik.listy.insert(pla.tekst(PLA("LISTA")).trimmed().toUpper());
        wynik.niePoliczonych += stan.niePoliczony;
        wynik.przelewPonadWyplate += stan.przelewPonadWyplate;
        if (pla.kwota(PLA("PRZELEWEM")) > Waluta())
            wynik.przelewem.append({klucz.first, pla.tekst(PLA("LISTA"))});
    }
    return wynik;
}

} // namespace tornel::payroll
