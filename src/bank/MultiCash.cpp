#include "bank/MultiCash.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "common/PolaKedu.h"
#include "common/Rozmowa.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <QDir>
#include <QFileInfo>

namespace tornel::bank {

using schemat::PLA;
using schemat::PLB;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::UZL;

namespace {

constexpr int kSzerKwoty = 15;
constexpr qsizetype kNumerBankuMCS = 8;
constexpr qsizetype kKawalekSzczegolow = 35;

/// A text that stands between quotation marks and pipes.
QString pole(const QString& tekst) {
    QString t = tekst.toUpper();
    for (QChar& znak : t) {
        if (znak == QLatin1Char('"')) znak = QLatin1Char('\'');
        if (znak == QLatin1Char('|') || znak < QLatin1Char(' ')) znak = QLatin1Char(' ');
    }
    return t;
}

QString wCudzyslowie(const QString& tekst) { return QLatin1Char('"') + tekst + QLatin1Char('"'); }

QString cztery(const std::array<QString, 4>& czesci) {
    return wCudzyslowie(QStringList{pole(czesci[0]), pole(czesci[1]), pole(czesci[2]), pole(czesci[3])}.join(
        QLatin1Char('|')));
}

} // namespace

QString PoMyslniku(const QString& tekst) {
    const qsizetype myslnik = tekst.indexOf(QLatin1Char('-'));
    return myslnik < 0 ? QString() : tekst.mid(myslnik + 1);
}

QString MultiCash::nazwaPliku(const PrzebiegMCS& przebieg) {
    const QString nazwa = przebieg.wystawienie.toString(QStringLiteral("yyMMdd")) +
                          QString::number(przebieg.paczka).rightJustified(2, QLatin1Char('0')) +
                          QStringLiteral(".pli");
    return QDir(przebieg.katalog).filePath(nazwa);
}

bool MultiCash::CzyZastapicPlik(const QString& plik) const {
    return !QFileInfo::exists(plik) ||
           o_.rozmowa.pytanie(QStringLiteral("Plik ") + QDir::toNativeSeparators(plik) +
                              QStringLiteral(" już istnieje. Czy zastąpić podany plik ?"));
}

QByteArray MultiCash::ZapiszRekordMCS(const RekordMCS& rekord, const PrzebiegMCS& przebieg) const {
    const Stale& c = o_.stale;
    std::array<QString, 4> szczegoly;
    for (std::size_t i = 0; i < szczegoly.size(); ++i)
        szczegoly[i] =
            przebieg.szczegoly.mid(static_cast<qsizetype>(i) * kKawalekSzczegolow, kKawalekSzczegolow);
    const QStringList pola{QStringLiteral("110"),
                           KeduDataOdwrotna(przebieg.platnosc),
                           KeduKwota(rekord.kwota, kSzerKwoty),
                           pole(przebieg.konto.left(kNumerBankuMCS)),
                           QStringLiteral("0"),
                           wCudzyslowie(pole(PoMyslniku(przebieg.konto))),
                           wCudzyslowie(pole(PoMyslniku(rekord.konto))),
                           cztery({c.MCSNazwa1, c.MCSNazwa2, c.MCSUlica, c.MCSKod}),
                           cztery(rekord.odbiorca),
                           QStringLiteral("0"),
                           pole(rekord.konto.left(kNumerBankuMCS)),
                           cztery(szczegoly),
                           QStringLiteral("\"\""),
                           QStringLiteral("\"\""),
                           QStringLiteral("\"  \""),
                           QStringLiteral("\"|||||\"")};
    return windows1250(pola.join(QLatin1Char(','))) + "\r\n";
}

std::optional<QByteArray> MultiCash::PrzelewMCSPracownika(qint64 prcId, Waluta kwota,
                                                          const PrzebiegMCS& przebieg) {
    Sesja& s = o_.sesja;
    if (!s.UstawPracownika(prcId)) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nie ma pracownika o numerze %1 w kadrach. Przelew nie został zapisany.")
                .arg(prcId),
            Styl::Wykrzyknik);
        return std::nullopt;
    }
    const Recordset& dp = s.rsPRACDP;
    const QChar odstep = QLatin1Char(' ');
    return ZapiszRekordMCS({kwota,
                            s.rsPRACPR.tekst(PRACPR("konto")),
                            {dp.tekst(PRACDP("Imie_1")) + odstep + dp.tekst(PRACDP("Naz")),
                             dp.tekst(PRACDP("ulica")) + odstep + dp.tekst(PRACDP("nr_domu")) +
                                 QLatin1Char('/') + dp.tekst(PRACDP("nr_miesz")),
                             dp.tekst(PRACDP("Kod")) + odstep + dp.tekst(PRACDP("miasto")), QString()}},
                           przebieg);
}

std::optional<int> MultiCash::wykonaj(const PrzebiegMCS& przebieg, Recordset& doOznaczenia, Kolumna znak,
                                      const QList<std::pair<Zakladka, Wyplata>>& pozycje) {
    const QString plik = nazwaPliku(przebieg);
    if (!CzyZastapicPlik(plik)) return std::nullopt;
    QByteArray bajty;
    QList<Zakladka> zapisane;
    for (const auto& [zakladka, wyplata] : pozycje)
        if (const auto linia = PrzelewMCSPracownika(wyplata.komu, wyplata.kwota, przebieg)) {
            bajty += *linia;
            zapisane.append(zakladka);
        }
    if (zapisane.isEmpty()) {
        o_.rozmowa.komunikat(QStringLiteral("Brak danych spełniających podane kryteria"), Styl::Wykrzyknik);
        return 0;
    }
    try {
        ZapiszPlik(plik, bajty);
    } catch (const Blad& blad) {
        throw Blad(blad.komunikat() + QStringLiteral(" Żaden przelew nie został oznaczony jako wysłany."));
    }
    for (const Zakladka zakladka : zapisane) {
        doOznaczenia.Bookmark(zakladka);
        doOznaczenia.ustawFlage(znak, true);
    }
    doOznaczenia.UpdateBatch(u"Plik przelewów dla banku");
    o_.rozmowa.komunikat(QStringLiteral("Plik ") + QDir::toNativeSeparators(plik) +
                             QStringLiteral(" został utworzony."),
                         Styl::Informacja);
    return static_cast<int>(zapisane.size());
}

std::optional<int> MultiCash::zListy(const PrzebiegMCS& przebieg, const QString& symbol) {
    Recordset& plb = o_.sesja.rsPLB;
    QList<std::pair<Zakladka, Wyplata>> pozycje;
    for (const Wiersz a : o_.sesja.rsPLA.wiersze()) {
        const QString lista = a.tekst(PLA("LISTA"));
        const Wyplata w{a.liczba(PLA("PRC_ID")), a.kwota(PLA("PRZELEWEM"))};
        if ((!symbol.trimmed().isEmpty() && lista != symbol) || !(w.kwota > Waluta{})) continue;
        const auto b = plb.szukaj(w.komu, lista);
        if (b && !b->flaga(PLB("WYS_MCS")) && b->liczba(PLB("PACZKA")) == przebieg.paczka)
            pozycje.append({b->zakladka(), w});
    }
    const Zakladka tu = plb.Bookmark();
    const auto wynik = wykonaj(przebieg, plb, PLB("WYS_MCS"), pozycje);
    plb.Bookmark(tu);
    return wynik;
}

std::optional<int> MultiCash::zUmow(const PrzebiegMCS& przebieg) {
    using Op = Kryterium::Operator;
    Recordset rs(UZL);
    rs.Open(o_.sesja.cnPlace, {},
            {{UZL("paczka"), Op::Rowne, qint64{przebieg.paczka}},
             {UZL("data_wyp"), Op::Rowne, przebieg.platnosc},
             {UZL("przelewem"), Op::Wieksze, Waluta{}}});
    rs.Sort({UZL("data_zaw"), UZL("uzl_nr"), UZL("UZLID")});
    QList<std::pair<Zakladka, Wyplata>> pozycje;
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
        if (!rs.flaga(UZL("wys_mcs")))
            pozycje.append({rs.Bookmark(), {rs.liczba(UZL("prc_id")), rs.kwota(UZL("przelewem"))}});
    return wykonaj(przebieg, rs, UZL("wys_mcs"), pozycje);
}

} // namespace tornel::bank
