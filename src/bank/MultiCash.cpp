#include "bank/MultiCash.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Pliki.h"
#include "common/PolaKedu.h"
#include "common/Rozmowa.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
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

MultiCash::CzesciStale MultiCash::czesciStale(const PrzebiegMCS& przebieg) const {
    const Stale& c = o_.stale;
    std::array<QString, 4> szczegoly;
    for (std::size_t i = 0; i < szczegoly.size(); ++i)
        szczegoly[i] =
            przebieg.szczegoly.mid(static_cast<qsizetype>(i) * kKawalekSzczegolow, kKawalekSzczegolow);
    return {QStringLiteral("110,") + KeduDataOdwrotna(przebieg.platnosc) + QLatin1Char(','),
            QLatin1Char(',') + pole(przebieg.konto.left(kNumerBankuMCS)) + QStringLiteral(",0,") +
                wCudzyslowie(pole(PoMyslniku(przebieg.konto))) + QLatin1Char(','),
            QLatin1Char(',') + cztery({c.MCSNazwa1, c.MCSNazwa2, c.MCSUlica, c.MCSKod}) + QLatin1Char(','),
            QLatin1Char(',') + cztery(szczegoly) + QStringLiteral(",\"\",\"\",\"  \",\"|||||\"\r\n")};
}

void MultiCash::ZapiszRekordMCS(const RekordMCS& rekord, const CzesciStale& stale, QByteArray& plik) {
    plik += windows1250(stale.poczatek + KeduKwota(rekord.kwota, kSzerKwoty) + stale.nadawca +
                        wCudzyslowie(pole(PoMyslniku(rekord.konto))) + stale.nazwaNadawcy +
                        cztery(rekord.odbiorca) + QStringLiteral(",0,") +
                        pole(rekord.konto.left(kNumerBankuMCS)) + stale.koniec);
}

bool MultiCash::PrzelewMCSPracownika(qint64 prcId, Waluta kwota, const CzesciStale& stale, QByteArray& plik) {
    Sesja& s = o_.sesja;
    if (!s.UstawPracownika(prcId)) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nie ma pracownika o numerze %1 w kadrach. Przelew nie został zapisany.")
                .arg(prcId),
            Styl::Wykrzyknik);
        return false;
    }
    const Recordset& dp = s.rsPRACDP;
    const QChar odstep = QLatin1Char(' ');
    ZapiszRekordMCS({kwota,
                     s.rsPRACPR.tekst(PRACPR("konto")),
                     {dp.tekst(PRACDP("Imie_1")) + odstep + dp.tekst(PRACDP("Naz")),
                      dp.tekst(PRACDP("ulica")) + odstep + dp.tekst(PRACDP("nr_domu")) + QLatin1Char('/') +
                          dp.tekst(PRACDP("nr_miesz")),
                      dp.tekst(PRACDP("Kod")) + odstep + dp.tekst(PRACDP("miasto")), QString()}},
                    stale, plik);
    return true;
}

bool MultiCash::pomimoPrzerwanego(const SzukaneWykonania& wToku, const QString& plik) const {
    for (const Wykonanie& w : Wykonane(o_.sesja).szukaj(wToku)) {
        // Where the same file is written again, its own question says enough.
        if (w.plik == QFileInfo(plik).absoluteFilePath() && QFileInfo::exists(plik)) continue;
        if (!o_.rozmowa.pytanieUsuwajace(
                QStringLiteral("Tworzenie pliku %1 dnia %2 zostało przerwane. Plik mógł powstać, a jego "
                               "przelewy nie są oznaczone jako wysłane. Jeśli ten plik trafił do banku, nowy "
                               "wyśle te same przelewy drugi raz. Czy utworzyć nowy plik ?")
                    .arg(QDir::toNativeSeparators(w.plik), FormatDaty(w.kiedy.date()))))
            return false;
    }
    return true;
}

std::optional<int> MultiCash::wykonaj(const PrzebiegMCS& przebieg, const ZrodloPrzelewow& zrodlo,
                                      Recordset& doOznaczenia, Kolumna znak,
                                      const QList<PozycjaMCS>& pozycje) {
    const QString plik = nazwaPliku(przebieg);
    const RokMies miesiac = miesiacPliku(zrodlo, przebieg.platnosc);
    const SzukaneWykonania wToku{.rodzaj = wykonanie::MultiCashWToku.kod.toString(),
                                 .miesiac = miesiac,
                                 .zrodlo = NazwaZrodla(zrodlo)};
    if (!pomimoPrzerwanego(wToku, plik) || !CzyZastapicPlik(plik)) return std::nullopt;
    QByteArray bajty;
    QList<PozycjaMCS> zapisane;
    Waluta suma;
    const CzesciStale stale = czesciStale(przebieg);
    for (const PozycjaMCS& p : pozycje)
        if (PrzelewMCSPracownika(p.prcId, p.kwota, stale, bajty)) {
            suma += p.kwota;
            zapisane.append(p);
        }
    if (zapisane.isEmpty()) {
        o_.rozmowa.komunikat(QStringLiteral("Brak danych spełniających podane kryteria"), Styl::Wykrzyknik);
        return 0;
    }
    const Wykonanie wykonany{
        .rodzaj = *wToku.rodzaj,
        .miesiac = miesiac,
        .zrodlo = *wToku.zrodlo,
        .lista = zrodlo.symbol.trimmed(),
        .dokument = przebieg.paczka,
        .kwota = suma,
        .plik = QFileInfo(plik).absoluteFilePath(),
        .opis =
            QStringLiteral("Plik dla banku: paczka %1, zleceń %2").arg(przebieg.paczka).arg(zapisane.size())};
    zapiszPlik(bajty, wykonany, przebieg.kiedy);
    for (const PozycjaMCS& p : zapisane) {
        doOznaczenia.Bookmark(p.wiersz);
        doOznaczenia.ustawFlage(znak, true);
    }
    zapiszZnaki(doOznaczenia, wykonany, przebieg.kiedy);
    o_.rozmowa.komunikat(QStringLiteral("Plik ") + QDir::toNativeSeparators(plik) +
                             QStringLiteral(" został utworzony."),
                         Styl::Informacja);
    return static_cast<int>(zapisane.size());
}

void MultiCash::zapiszPlik(const QByteArray& bajty, const Wykonanie& wToku, const QDateTime& kiedy) {
    const SzukaneWykonania ten{.rodzaj = wToku.rodzaj, .miesiac = wToku.miesiac, .zrodlo = wToku.zrodlo};
    Wykonane wykonane(o_.sesja);
    wykonane.usun(ten);
    wykonane.dopisz({wToku}, kiedy);
    try {
        ZapiszPlik(wToku.plik, bajty);
    } catch (const Blad& blad) {
        wykonane.usun(ten);
        throw Blad(blad.komunikat() + QStringLiteral(" Żaden przelew nie został oznaczony jako wysłany."));
    }
}

void MultiCash::zapiszZnaki(Recordset& doOznaczenia, Wykonanie wykonany, const QDateTime& kiedy) {
    Transakcja akcja(o_.sesja.cnPlace, u"Plik przelewów dla banku");
    doOznaczenia.UpdateBatch(akcja);
    Wykonane wykonane(o_.sesja);
    wykonane.usun({.rodzaj = wykonany.rodzaj, .miesiac = wykonany.miesiac, .zrodlo = wykonany.zrodlo});
    wykonany.rodzaj = wykonanie::MultiCash.kod.toString();
    wykonane.dopisz({wykonany}, kiedy);
    akcja.zatwierdz();
}

QList<PozycjaMCS> MultiCash::pozycjeListy(const QString& symbol, std::optional<int> paczka) const {
    QList<PozycjaMCS> pozycje;
    for (const Wiersz a : o_.sesja.rsPLA.wiersze()) {
        const QString lista = a.tekst(PLA("LISTA"));
        const qint64 prcId = a.liczba(PLA("PRC_ID"));
        const Waluta kwota = a.kwota(PLA("PRZELEWEM"));
        if ((!symbol.trimmed().isEmpty() && lista != symbol) || !(kwota > Waluta{})) continue;
        const auto b = o_.sesja.rsPLB.szukaj(prcId, lista);
        if (b && !b->flaga(PLB("WYS_MCS")) && (!paczka || b->liczba(PLB("PACZKA")) == *paczka))
            pozycje.append({b->zakladka(), prcId, kwota, b->liczba(PLB("PACZKA"))});
    }
    return pozycje;
}

Recordset MultiCash::umowyPaczki(std::optional<int> paczka, std::optional<QDate> platnosc) const {
    using Op = Kryterium::Operator;
    Warunek warunek{{UZL("przelewem"), Op::Wieksze, Waluta{}}};
    if (paczka) warunek.append({UZL("paczka"), Op::Rowne, qint64{*paczka}});
    if (platnosc) warunek.append({UZL("data_wyp"), Op::Rowne, *platnosc});
    Recordset rs(UZL);
    rs.Open(o_.sesja.cnPlace, {}, warunek);
    rs.Sort({UZL("data_zaw"), UZL("uzl_nr"), UZL("UZLID")});
    return rs;
}

QList<PozycjaMCS> MultiCash::pozycjeUmow(Recordset& umowy) {
    QList<PozycjaMCS> pozycje;
    for (umowy.MoveFirst(); !umowy.EOF_(); umowy.MoveNext())
        if (!umowy.flaga(UZL("wys_mcs")))
            pozycje.append({umowy.Bookmark(), umowy.liczba(UZL("prc_id")), umowy.kwota(UZL("przelewem")),
                            umowy.liczba(UZL("paczka"))});
    return pozycje;
}

QList<PozycjaMCS> MultiCash::pozycje(const ZrodloPrzelewow& zrodlo, std::optional<int> paczka,
                                     std::optional<QDate> platnosc) const {
    if (!zrodlo.umowy) return pozycjeListy(zrodlo.symbol, paczka);
    Recordset umowy = umowyPaczki(paczka, platnosc);
    return pozycjeUmow(umowy);
}

PodsumowanieMCS MultiCash::podsumuj(const ZrodloPrzelewow& zrodlo, int paczka, QDate platnosc) const {
    PodsumowanieMCS wynik;
    for (const PozycjaMCS& p : pozycje(zrodlo, paczka, platnosc)) {
        ++wynik.zlecen;
        wynik.kwota += p.kwota;
    }
    return wynik;
}

RokMies MultiCash::miesiacPliku(const ZrodloPrzelewow& zrodlo, QDate platnosc) const {
    return zrodlo.umowy ? RokMies::dnia(platnosc) : o_.sesja.miesiac();
}

QString MultiCash::zapisano(const ZrodloPrzelewow& zrodlo, int paczka, QDate platnosc) const {
    return Wykonane(o_.sesja).napis(wykonanie::MultiCash, {.miesiac = miesiacPliku(zrodlo, platnosc),
                                                           .zrodlo = NazwaZrodla(zrodlo),
                                                           .lista = zrodlo.symbol.trimmed(),
                                                           .dokument = paczka});
}

int MultiCash::pierwszaPaczka(const ZrodloPrzelewow& zrodlo) const {
    const QList<PozycjaMCS> wszystkie = pozycje(zrodlo, std::nullopt, std::nullopt);
    const auto najmniejsza = std::ranges::min_element(wszystkie, {}, &PozycjaMCS::paczka);
    return najmniejsza == wszystkie.end() ? 0 : static_cast<int>(najmniejsza->paczka);
}

std::optional<int> MultiCash::utworz(const PrzebiegMCS& przebieg, const ZrodloPrzelewow& zrodlo) {
    if (zrodlo.umowy) {
        Recordset rs = umowyPaczki(przebieg.paczka, przebieg.platnosc);
        const QList<PozycjaMCS> doWyslania = pozycjeUmow(rs);
        return wykonaj(przebieg, zrodlo, rs, UZL("wys_mcs"), doWyslania);
    }
    Recordset& plb = o_.sesja.rsPLB;
    const Zakladka tu = plb.Bookmark();
    const auto wynik =
        wykonaj(przebieg, zrodlo, plb, PLB("WYS_MCS"), pozycjeListy(zrodlo.symbol, przebieg.paczka));
    plb.Bookmark(tu);
    return wynik;
}

} // namespace tornel::bank
