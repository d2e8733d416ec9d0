#include "rules/Kartoteka.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"

namespace tornel::rules {

using schemat::PRACDP;

namespace {

/// A message box has no room for everybody.
constexpr qsizetype kNajwiecejNazwisk = 5;

/// Looked up in the file: the shared handle stays where the screen beneath has left it.
QString nazwisko(Polaczenie& polaczenie, qint64 prcId) {
    Recordset osoba(schemat::PRACDP);
    osoba.Open(polaczenie, {}, {{PRACDP("prc_id"), Kryterium::Operator::Rowne, prcId}});
    const QString wynik =
        osoba.naWierszu()
            ? (osoba.tekst(PRACDP("Naz")) + QLatin1Char(' ') + osoba.tekst(PRACDP("Imie_1"))).trimmed()
            : QString();
    return wynik.isEmpty() ? QStringLiteral("nr %1").arg(prcId) : wynik;
}

/// "pracownicy: 2 (Nowak Anna, Kowalski Jan)"; empty if no row has the number.
QString liniaUzycia(Polaczenie& polaczenie, const UzycieNumeru& uzycie, qint64 numer) {
    const TabelaDef& tabela = *uzycie.kolumna.tabela;
    Recordset rs(tabela);
    rs.Open(polaczenie, {}, {{uzycie.kolumna, Kryterium::Operator::Rowne, numer}});
    if (rs.RecordCount() == 0) return {};
    const Kolumna prcId = tabela.nr(tabela.numer("PRC_ID"));
    QStringList nazwiska;
    for (rs.MoveFirst(); !rs.EOF_() && nazwiska.size() <= kNajwiecejNazwisk; rs.MoveNext()) {
        const QString kolejne = nazwisko(polaczenie, rs.liczba(prcId));
        if (!nazwiska.contains(kolejne)) nazwiska.append(kolejne);
    }
    if (nazwiska.size() > kNajwiecejNazwisk) nazwiska.last() = QStringLiteral("i inni");
    return QStringLiteral("%1: %2 (%3)")
        .arg(uzycie.kto.toString(), QString::number(rs.RecordCount()), nazwiska.join(QStringLiteral(", ")));
}

} // namespace

qint64 WolnyNumer(const Recordset& tabela) {
    qint64 numer = 1;
    while (!tabela.wiersze(numer).isEmpty()) ++numer;
    return numer;
}

Kartoteka::Kartoteka(Otoczenie& otoczenie, const KartotekaDef& def) : o_(otoczenie), def_(def) {
    tabela().Open(o_.sesja.cnPlace);
    tabela().Sort({klucz()});
}

Kolumna Kartoteka::klucz() const {
    const TabelaDef& t = tabela().tabela();
    return t.nr(t.numer(t.klucz[0]));
}

QList<qint64> Kartoteka::numery() const {
    QList<qint64> wynik;
    for (const Wiersz w : std::as_const(tabela()).wiersze()) wynik.append(w.liczba(klucz()));
    return wynik;
}

qint64 Kartoteka::Nowy() {
    Recordset& rs = tabela();
    const qint64 numer = WolnyNumer(rs);
    try {
        rs.AddNewZero(numer);
        for (const auto& [kolumna, wartosc] : def_.nowy) rs.ustaw(kolumna, wartosc);
        rs.UpdateBatch(def_.czynnosc.toString() + QStringLiteral(": nowa pozycja nr %1").arg(numer));
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
    return numer;
}

QStringList Kartoteka::uzytkownicy(qint64 numer) const {
    QStringList linie;
    for (const UzycieNumeru& uzycie : def_.uzycia)
        if (const QString linia = liniaUzycia(o_.sesja.cnPlace, uzycie, numer); !linia.isEmpty())
            linie.append(linia);
    if (def_.stala && o_.stale.*def_.stala == numer)
        linie.append(QStringLiteral("stałe programu: ") + def_.nazwaStalej.toString());
    return linie;
}

void Kartoteka::wymagaj(qint64 numer) {
    if (!Ustaw(numer)) throw Blad(QStringLiteral("Na liście nie ma pozycji o numerze %1.").arg(numer));
}

bool Kartoteka::Usun(qint64 numer) {
    wymagaj(numer);
    if (const QStringList linie = uzytkownicy(numer); !linie.isEmpty()) {
        o_.rozmowa.komunikat(def_.odmowa.toString() + QStringLiteral("\r\n\r\n") +
                                 linie.join(QStringLiteral("\r\n")),
                             Styl::Wykrzyknik);
        return false;
    }
    if (!o_.rozmowa.pytanieUsuwajace(def_.pytanie.toString())) return false;
    wymagaj(numer);
    Recordset& rs = tabela();
    try {
        rs.Delete();
        rs.UpdateBatch(def_.czynnosc.toString() + QStringLiteral(": usunięcie pozycji nr %1").arg(numer));
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
    return true;
}

} // namespace tornel::rules
