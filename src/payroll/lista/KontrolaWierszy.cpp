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

StanWiersza KontrolaWierszy::sprawdz(const Wiersz& pla, const std::optional<Wiersz>& pls) const {
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

} // namespace tornel::payroll
