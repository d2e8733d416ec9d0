#include "zus/ZbiorKedu.h"
#include "common/PolaKedu.h"
#include "common/Rozmowa.h"
#include "zus/WykonanieKedu.h"
#include <algorithm>

namespace tornel::zus {

using schemat::KONTA;
using schemat::M_PRACY;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;
using schemat::RODZINA;

namespace {

/// The clerk stopped the writing.
struct Zatrzymane {};

const QString kOdstepy30(30, QLatin1Char(' '));
constexpr int kLiniiNaglowkaZbioru = 4, kLiniiNaglowkaDokumentu = 8;
constexpr int kReszta19 = 19, kReszta5 = 5;

QString znacznikDokumentu(QStringView kod) { return QStringLiteral("ZUS%1").arg(kod); }

} // namespace

/// The lines on their way into the file. They gather before they are written, so that a line costs no call of
/// the system and a large collection no memory.
class ZbiorKedu::Strumien {
public:
    explicit Strumien(const QString& sciezka) : plik_(sciezka) { bufor_.reserve(kBufor + kZapas); }

    void linia(const QString& tekst) {
        bufor_ += windows1250(tekst);
        bufor_ += "\r\n";
        if (bufor_.size() < kBufor) return;
        plik_.dopisz(bufor_);
        bufor_.resize(0);
    }
    /// "<nazwa>" or "</nazwa>".
    void poczatek(const QString& nazwa) { linia(QLatin1Char('<') + nazwa + QLatin1Char('>')); }
    void koniec(const QString& nazwa) { linia(QStringLiteral("</") + nazwa + QLatin1Char('>')); }

    void KeduNaglowekZbioru() {
        linia(QStringLiteral("<!DOCTYPE KEDU PUBLIC '-//ZUS//DTD KEDU 1.0//PL' ["));
        linia(QStringLiteral("<!ENTITY wersja '001.000'>"));
        // The file is Windows-1250 whatever this line says: deliberate.
        linia(QStringLiteral("<!ENTITY strona.kodowa 'ISO 8859-2'>]>"));
        poczatek(QStringLiteral("KEDU"));
        pusteLinie(QStringLiteral("naglowek.KEDU"), kLiniiNaglowkaZbioru, kReszta19);
    }
    void KeduStopkaZbioru() {
        pusteLinie(QStringLiteral("stopka.KEDU"), 0, 0);
        koniec(QStringLiteral("KEDU"));
    }
    void KeduNaglowekDokumentu(QStringView kod) {
        poczatek(znacznikDokumentu(kod) + QStringLiteral(".DP"));
        pusteLinie(QStringLiteral("naglowek.DP"), kLiniiNaglowkaDokumentu, kReszta5);
    }
    void KeduStopkaDokumentu(QStringView kod) {
        pusteLinie(QStringLiteral("stopka.DP"), 0, 0);
        koniec(znacznikDokumentu(kod) + QStringLiteral(".DP"));
    }
    void blok(const BlokKedu& opis, const KontekstKedu& k) {
        const QString nazwa = opis.nazwa.toString();
        poczatek(nazwa);
        for (const QString& tekst : LinieBloku(opis, k)) linia(tekst);
        koniec(nazwa);
    }
    void zatwierdz() {
        plik_.dopisz(bufor_);
        plik_.zatwierdz();
    }

private:
    static constexpr qsizetype kBufor = 1 << 20, kZapas = 1 << 10;

    void pusteLinie(const QString& nazwa, int ile, int reszta) {
        poczatek(nazwa);
        for (int i = 0; i < ile; ++i) linia(kOdstepy30);
        if (reszta > 0) linia(kOdstepy30.left(reszta));
        koniec(nazwa);
    }

    NowyPlik plik_;
    QByteArray bufor_;
};

int WynikKedu::razem() const {
    int suma = 0;
    for (const auto& [kod, ile] : dokumenty) suma += ile;
    return suma;
}

QList<qint64> ListaAktywnych(const Sesja& sesja) {
    QList<qint64> numery;
    for (const Wiersz dp : sesja.rsPRACDP.wiersze()) {
        const qint64 prcId = dp.liczba(PRACDP("prc_id"));
        const auto pr = sesja.rsPRACPR.szukaj(prcId);
        if (pr && !pr->flaga(PRACPR("Zwoln"))) numery.append(prcId);
    }
    // The handle stands in the order in which a screen has left it.
    std::ranges::sort(numery);
    return numery;
}

QString DomyslnyIdentyfikator(RokMies miesiac) {
    return QStringLiteral("01") + FormatMiesiaca(miesiac.mies) + FormatRoku(miesiac.rok);
}

ZbiorKedu::ZbiorKedu(Otoczenie& otoczenie, ZamowienieKedu zamowienie)
    : o_(otoczenie),
      zamowienie_(std::move(zamowienie)), k_{.stale = otoczenie.stale, .dzis = zamowienie_.kiedy.date()} {}

ZbiorKedu::~ZbiorKedu() = default;

QList<qint64> ZbiorKedu::pracownicy() const {
    return zamowienie_.prcId != 0 ? QList<qint64>{zamowienie_.prcId} : ListaAktywnych(o_.sesja);
}

void ZbiorKedu::krok(const DokumentKedu& dokument, qint64 prcId) {
    if (!postep_->krok(++krok_, QStringLiteral("ZUS %1: pracownik nr %2").arg(dokument.nazwa).arg(prcId)))
        throw Zatrzymane{};
}

bool ZbiorKedu::ustawPracownika(qint64 prcId) {
    const Sesja& s = o_.sesja;
    const auto dp = s.rsPRACDP.szukaj(prcId);
    const auto pr = s.rsPRACPR.szukaj(prcId);
    const auto zus = s.rsPRACZUS.szukaj(prcId);
    k_.ustaw(PRACDP, dp);
    k_.ustaw(PRACPR, pr);
    k_.ustaw(PRACZUS, zus);
    return dp && pr && zus && s.rsPRACSK.szukaj(prcId) && s.rsPRACINF.szukaj(prcId);
}

void ZbiorKedu::piszDokument(const DokumentKedu& dokument, const QList<Wiersz>& wiersze) {
    const QString znacznik = znacznikDokumentu(dokument.nazwa);
    plik_->KeduNaglowekDokumentu(dokument.nazwa);
    plik_->poczatek(znacznik);
    for (const CzescDokumentu& czesc : dokument.bloki) {
        if (!czesc.powtarzany) {
            plik_->blok(*czesc.blok, k_);
            continue;
        }
        for (const Wiersz& wiersz : wiersze) {
            k_.ustaw(*czesc.powtarzany, wiersz);
            plik_->blok(*czesc.blok, k_);
        }
    }
    plik_->koniec(znacznik);
    plik_->KeduStopkaDokumentu(dokument.nazwa);
    ++wynik_.dokumenty[dokument.kod];
}

void ZbiorKedu::piszPracownikow(const DokumentKedu& dokument) {
    for (const qint64 prcId : pracownicy()) {
        krok(dokument, prcId);
        if (!ustawPracownika(prcId)) continue;
        const qint64 znak = o_.sesja.rsPRACZUS.szukaj(prcId)->liczba(dokument.znak);
        if (znak >= 1 && znak <= dokument.najwyzszy) piszDokument(dokument, {});
    }
}

void ZbiorKedu::piszRodziny(const DokumentKedu& dokument) {
    Recordset rodzina(RODZINA);
    rodzina.Open(o_.sesja.cnPlace, {}, {{dokument.znak, Kryterium::Operator::NieMniejsze, qint64{1}}});
    for (const qint64 prcId : pracownicy()) {
        krok(dokument, prcId);
        QList<Wiersz> czlonkowie;
        for (const Zakladka z : rodzina.wiersze(prcId)) czlonkowie.append(Wiersz(rodzina, z));
        if (czlonkowie.isEmpty() || !ustawPracownika(prcId)) continue;
        std::ranges::sort(czlonkowie, {}, [](const Wiersz& w) { return w.liczba(RODZINA("ROD_ID")); });
        for (int rodzaj = 1; rodzaj <= dokument.najwyzszy; ++rodzaj) {
            QList<Wiersz> oznaczeni;
            for (const Wiersz& w : czlonkowie)
                if (w.liczba(dokument.znak) == rodzaj) oznaczeni.append(w);
            if (!oznaczeni.isEmpty()) piszDokument(dokument, oznaczeni);
        }
    }
}

void ZbiorKedu::piszOznaczone(const DokumentKedu& dokument, Recordset& tabela) {
    tabela.Open(o_.sesja.cnPlace);
    QList<Wiersz> oznaczone;
    for (const Wiersz w : tabela.wiersze()) {
        // The mark is a text in one of the tables and a number in the other.
        const Wartosc znak = w.wartosc(dokument.znak);
        const auto* tekst = std::get_if<QString>(&znak);
        const auto* liczba = std::get_if<qint64>(&znak);
        if ((tekst && (*tekst == u"1" || *tekst == u"2")) || (liczba && (*liczba == 1 || *liczba == 2)))
            oznaczone.append(w);
    }
    const Kolumna klucz = tabela.tabela().nr(0);
    std::ranges::stable_sort(oznaczone, {}, [klucz](const Wiersz& w) { return w.liczba(klucz); });
    if (oznaczone.isEmpty()) return;
    piszDokument(dokument, oznaczone);
    (dokument.petla == Petla::Konta ? k_.kont : k_.adresow) += static_cast<int>(oznaczone.size());
}

void ZbiorKedu::powiedzCoBrakuje(KodKedu kod, RokMies miesiac, qint64 prcId) {
    wynik_.bezDanych.append({kod, miesiac, prcId});
}

void ZbiorKedu::piszPrzerwy(const BlokKedu& blok, const RaportMiesieczny& raport, qint64 prcId) {
    DaneRaportu dane = raport.dane(prcId);
    if (!dane.jest) return;
    k_.raport = &dane;
    for (const WpisSwiadczenia& przerwa : raport.przerwy(prcId)) {
        dane.przerwa = przerwa;
        plik_->blok(blok, k_);
    }
}

void ZbiorKedu::piszOsobeRaportu(const DokumentKedu& dokument, const RaportMiesieczny& raport, qint64 prcId) {
    const BlokKedu& blok = *std::ranges::find_if(dokument.bloki, [](const CzescDokumentu& c) {
                                return c.powtarzany != nullptr;
                            })->blok;
    const DaneRaportu dane = raport.dane(prcId);
    if (raport.jestMiesiac() && !dane.jest)
        powiedzCoBrakuje(dokument.kod, zamowienie_.raporty.at(dokument.kod).miesiac, prcId);
    if (dokument.kod == KodKedu::RSA) {
        piszPrzerwy(blok, raport, prcId);
        return;
    }
    k_.raport = &dane;
    plik_->blok(blok, k_);
}

void ZbiorKedu::piszRaport(const DokumentKedu& dokument, const ZamowionyRaport& zamowiony) {
    const RaportMiesieczny raport(o_, dokument.kod, zamowiony, zamowienie_.zlecenia);
    const QString znacznik = znacznikDokumentu(dokument.nazwa);
    DaneRaportu naglowek;
    naglowek.identyfikator = zamowiony.identyfikator;
    k_.raport = &naglowek;
    if (!raport.jestMiesiac()) powiedzCoBrakuje(dokument.kod, zamowiony.miesiac, 0);
    plik_->KeduNaglowekDokumentu(dokument.nazwa);
    plik_->poczatek(znacznik);
    const bool jeden = zamowienie_.prcId != 0;
    for (const CzescDokumentu& czesc : dokument.bloki) {
        if (!czesc.powtarzany) {
            plik_->blok(*czesc.blok, k_);
            continue;
        }
        for (const qint64 prcId : pracownicy()) {
            krok(dokument, prcId);
            const bool ustawiony = ustawPracownika(prcId);
            if (jeden || MaWierszRaportu(dokument.kod, ustawiony, o_.sesja.rsPRACZUS.szukaj(prcId)))
                piszOsobeRaportu(dokument, raport, prcId);
        }
        k_.raport = &naglowek;
    }
    plik_->koniec(znacznik);
    plik_->KeduStopkaDokumentu(dokument.nazwa);
    k_.raport = nullptr;
    ++wynik_.dokumenty[dokument.kod];
}

bool MaWierszRaportu(KodKedu kod, bool ustawiony, const std::optional<Wiersz>& zus) {
    switch (kod) {
    case KodKedu::RCA:
        // Only who could not be found, so that a report of all normally holds nobody: deliberate.
        return !ustawiony;
    case KodKedu::RNA:
        return ustawiony;
    default: {
        // The RSA goes by the mark of the RZA: deliberate.
        const qint64 rza = zus ? zus->liczba(PRACZUS("rza")) : 0;
        return ustawiony && (rza == 1 || rza == 2);
    }
    }
}

void ZbiorKedu::pisz(const DokumentKedu& dokument) {
    switch (dokument.petla) {
    case Petla::Pracownik:
        piszPracownikow(dokument);
        break;
    case Petla::Rodzina:
        piszRodziny(dokument);
        break;
    case Petla::Konta:
        piszOznaczone(dokument, konta_);
        break;
    case Petla::Adresy:
        piszOznaczone(dokument, adresy_);
        break;
    case Petla::Platnik:
        k_.typ = zamowienie_.wybor[dokument.kod];
        piszDokument(dokument, {});
        break;
    case Petla::Raport:
        if (const auto raport = zamowienie_.raporty.find(dokument.kod); raport != zamowienie_.raporty.end())
            piszRaport(dokument, raport->second);
        break;
    case Petla::Brak:
        break;
    }
}

std::optional<WynikKedu> ZbiorKedu::StworzPlik() {
    int krokow = 0;
    const qsizetype osob = zamowienie_.wybor.dlaPracownikow() ? pracownicy().size() : 0;
    for (const DokumentKedu& d : DokumentyKedu())
        if (zamowienie_.wybor.jest(d.kod) && d.petla != Petla::Konta && d.petla != Petla::Adresy &&
            d.petla != Petla::Platnik)
            krokow += static_cast<int>(osob);
    postep_ = o_.rozmowa.postep(QStringLiteral("Przygotowanie KEDU"), krokow);
    plik_ = std::make_unique<Strumien>(zamowienie_.plik);
    try {
        plik_->KeduNaglowekZbioru();
        for (const DokumentKedu& d : DokumentyKedu())
            if (zamowienie_.wybor.jest(d.kod)) pisz(d);
        plik_->KeduStopkaZbioru();
    } catch (const Zatrzymane&) {
        postep_.reset();
        return std::nullopt;
    }
    postep_.reset();
    plik_->zatwierdz();
    zapiszZnaki();
    powiedzJakPoszlo();
    return wynik_;
}

void ZbiorKedu::zapiszZnaki() {
    Transakcja akcja(o_.sesja.cnPlace, u"Kolekcja dokumentów dla ZUS");
    if (k_.adresow > 0) {
        for (adresy_.MoveFirst(); !adresy_.EOF_(); adresy_.MoveNext()) {
            const QString znak = adresy_.tekst(M_PRACY("zza"));
            if (znak == u"1" || znak == u"2") adresy_.ustaw(M_PRACY("zza"), QStringLiteral("0"));
        }
        adresy_.UpdateBatch(akcja);
    }
    ZapamietajKedu(o_.sesja, zamowienie_, wynik_);
    akcja.zatwierdz();
    if (k_.adresow > 0 && o_.sesja.rsM_PRACY.otwarty()) o_.sesja.rsM_PRACY.Requery();
}

void ZbiorKedu::powiedzJakPoszlo() const {
    for (const BezDanych& b : wynik_.bezDanych)
        o_.rozmowa.komunikat(
            b.prcId == 0 ? QStringLiteral("Nie odnaleziono miesiąca ") + b.miesiac.napis()
                         : QStringLiteral("Nie odnaleziono osoby o numerze %1 na liscie plac !").arg(b.prcId),
            Styl::Wykrzyknik);
    if (wynik_.razem() > 0)
        o_.rozmowa.komunikat(QStringLiteral("Plik został wygenerowany."), Styl::Informacja);
    else
        o_.rozmowa.komunikat(QStringLiteral("Nie znaleziono danych do wygenerowania wybranych deklaracji. "
                                            "Wygenerowany został pusty plik."),
                             Styl::Wykrzyknik);
}

} // namespace tornel::zus
