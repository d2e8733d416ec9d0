#include "bank/Przelewy.h"
#include "common/Rozmowa.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::bank {

using schemat::KONTA;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRZELEW;
using schemat::US;

namespace {

constexpr qsizetype kPoleFormularza = 45;
constexpr qsizetype kNumerBanku = 8;
constexpr qsizetype kSrodekKonta = 24;

/// The parts trimmed, empty ones left out, joined by blanks.
QString polacz(const QStringList& czesci) {
    QStringList niepuste;
    for (const QString& czesc : czesci)
        if (const QString t = czesc.trimmed(); !t.isEmpty()) niepuste.append(t);
    return niepuste.join(QLatin1Char(' '));
}

} // namespace

Przelew UlozPrzelew(const DanePrzelewu& dane) {
    Przelew p;
    const auto dwiePolowy = [](const QString& tekst, QString& pierwsza, QString& druga) {
        const QString t = tekst.toUpper();
        pierwsza = t.left(kPoleFormularza);
        druga = t.mid(kPoleFormularza, kPoleFormularza);
    };
    dwiePolowy(dane.odbiorca, p.nazodb, p.nazodbcd);
    dwiePolowy(dane.zleceniodawca, p.nazzlec, p.nazzleccd);
    dwiePolowy(dane.tytul, p.Tytulem, p.tytulemcd);
    p.LK = dane.tytul.toUpper().left(2);
    const QString konto = dane.kontoOdbiorcy.toUpper();
    p.nrrachodb1 = konto.left(kNumerBanku);
    // A hyphen behind the bank's number is only its end.
    const qsizetype dalej = konto.mid(kNumerBanku, 1) == QLatin1String("-") ? kNumerBanku + 1 : kNumerBanku;
    p.nrrachodb2 = konto.mid(dalej, kSrodekKonta);
    p.nrrachodb3 = konto.mid(dalej + kSrodekKonta, kSrodekKonta);
    p.Kwota = dane.kwota;
    p.NrRachZlec = dane.kontoZleceniodawcy.toUpper().left(kPoleFormularza);
    return p;
}

QString Przelewy::nadawca() const {
    const Stale& c = o_.stale;
    return polacz({c.NazwaUzCz1, c.NazwaUzCz2, c.Ulica, c.KodiMiasto});
}

std::optional<QString> Przelewy::kontoNadawcy(qint64 konto) {
    Recordset rs(KONTA);
    rs.Open(o_.sesja.cnPlace);
    if (rs.RecordCount() == 0) {
        o_.rozmowa.komunikat(
            QStringLiteral("Brak zarejestrowanych kont bankowych. Przelew nie może zostać wydrukowany."),
            Styl::Wykrzyknik);
        return std::nullopt;
    }
    if (!rs.Znajdz(konto)) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nie ma konta bankowego o numerze %1. Przelew nie może zostać wydrukowany.")
                .arg(konto),
            Styl::Wykrzyknik);
        return std::nullopt;
    }
    return rs.tekst(KONTA("konto"));
}

QList<Przelew> Przelewy::PrzelewPracownika(const QList<Wyplata>& wyplaty, qint64 konto,
                                           const QString& tytul) {
    QList<Przelew> wynik;
    const auto rachunek = kontoNadawcy(konto);
    if (!rachunek) return wynik;
    Sesja& s = o_.sesja;
    for (const Wyplata& w : wyplaty) {
        if (!s.UstawPracownika(w.komu)) {
            o_.rozmowa.komunikat(
                QStringLiteral("Nie ma pracownika o numerze %1 w kadrach. Przelew nie został wydrukowany.")
                    .arg(w.komu),
                Styl::Wykrzyknik);
            continue;
        }
        const Recordset& dp = s.rsPRACDP;
        const auto pole = [&](const Kolumna& k) { return dp.tekst(k).trimmed(); };
        const QString odbiorca =
            polacz({pole(PRACDP("Imie_1")), pole(PRACDP("Naz")), pole(PRACDP("ulica")),
                    pole(PRACDP("nr_domu")) + QLatin1Char('/') + pole(PRACDP("nr_miesz"))});
        wynik.append(
            UlozPrzelew({odbiorca, s.rsPRACPR.tekst(PRACPR("konto")), w.kwota, nadawca(), *rachunek, tytul}));
        wynik.last().za = w;
    }
    return wynik;
}

QList<Przelew> Przelewy::PrzelewPodatku(const QList<Wyplata>& wyplaty, qint64 konto, const QString& tytul) {
    QList<Przelew> wynik;
    Recordset us(US);
    us.Open(o_.sesja.cnPlace);
    if (us.RecordCount() == 0) {
        o_.rozmowa.komunikat(QStringLiteral("Brak zarejestrowanych urzędów skarbowych"), Styl::Wykrzyknik);
        return wynik;
    }
    const auto rachunek = kontoNadawcy(konto);
    if (!rachunek) return wynik;
    for (const Wyplata& w : wyplaty) {
        if (!us.Znajdz(w.komu)) {
            o_.rozmowa.komunikat(QStringLiteral("Brak zarejestrowanego urzędu skarbowego o numerze ") +
                                     QString::number(w.komu),
                                 Styl::Wykrzyknik);
            continue;
        }
        const QString odbiorca =
            polacz({us.tekst(US("Nazwa")), us.tekst(US("ulica")), us.tekst(US("nr_domu")),
                    us.tekst(US("Kod")), us.tekst(US("miasto"))});
        wynik.append(UlozPrzelew({odbiorca, us.tekst(US("konto")), w.kwota, nadawca(), *rachunek, tytul}));
        wynik.last().za = w;
    }
    return wynik;
}

void Przelewy::ZapiszPrzelewy(const QList<Przelew>& przelewy) {
    if (przelewy.isEmpty()) return;
    static constexpr std::pair<Kolumna, QString Przelew::*> teksty[] = {
        {PRZELEW("nazodb"), &Przelew::nazodb},
        {PRZELEW("nazodbcd"), &Przelew::nazodbcd},
        {PRZELEW("LK"), &Przelew::LK},
        {PRZELEW("nrrachodb1"), &Przelew::nrrachodb1},
        {PRZELEW("nrrachodb2"), &Przelew::nrrachodb2},
        {PRZELEW("nrrachodb3"), &Przelew::nrrachodb3},
        {PRZELEW("NrRachZlec"), &Przelew::NrRachZlec},
        {PRZELEW("nazzlec"), &Przelew::nazzlec},
        {PRZELEW("nazzleccd"), &Przelew::nazzleccd},
        {PRZELEW("Tytulem"), &Przelew::Tytulem},
        {PRZELEW("tytulemcd"), &Przelew::tytulemcd},
    };
    Recordset rs(PRZELEW);
    rs.Open(o_.sesja.cnPlace);
    rs.MoveFirst();
    if (!rs.naWierszu()) rs.AddNewZero();
    const Przelew& ostatni = przelewy.constLast();
    for (const auto& [kolumna, pole] : teksty) rs.ustaw(kolumna, ostatni.*pole);
    rs.ustaw(PRZELEW("Kwota"), ostatni.Kwota);
    rs.UpdateBatch(u"Przelew");
}

QList<KontoNadawcy> KontaNadawcy(Otoczenie& otoczenie) {
    Recordset rs(KONTA);
    rs.Open(otoczenie.sesja.cnPlace);
    rs.Sort({KONTA("NR")});
    QList<KontoNadawcy> wynik;
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
        wynik.append({rs.liczba(KONTA("NR")), rs.tekst(KONTA("skrot")), rs.tekst(KONTA("Nazwa")),
                      rs.tekst(KONTA("konto"))});
    return wynik;
}

} // namespace tornel::bank
