#include "payroll/lista/ListaPlac.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <QHash>

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;

namespace {

const QString kWszystkieListy = QStringLiteral(" ");

std::array<Recordset*, 4> tabeleWiersza(Sesja& s) { return {&s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD}; }

} // namespace

ListaPlac::ListaPlac(Otoczenie& otoczenie, int rok, int mies, const QString& symbol, WykazyPodstaw* wykazy)
    : o_(otoczenie), rok_(rok), mies_(mies), symbol_(symbol.isEmpty() ? kWszystkieListy : symbol.left(1)),
      naliczanie_(otoczenie, pozycje_, odpowiedzi_, wykazy) {
    int wynik = 0;
    o_.sesja.OtworzMiesiac(rok, mies, wynik);
    if (wynik != 0)
        throw Blad(QStringLiteral("Nie ma listy płac za miesiąc %1.").arg(NapisMiesiaca(rok, mies)));
    zablokowany_ = o_.sesja.rsPLACE.flaga(PLACE("akc"));
    Pobierz_Akt();
}

ListaPlac::~ListaPlac() = default;

void ListaPlac::Pobierz_Akt() {
    const Maski katalog = o_.skladniki.maski();
    // An open month goes by the catalogue, a blocked one by the masks that its header kept.
    const Maski miesiac = zablokowany_ ? Maski::zMiesiaca(o_.sesja.rsPLACE) : katalog;
    for (int i = 1; i <= kDodatnich; ++i)
        pozycje_.dodatnie[static_cast<std::size_t>(i - 1)] = {
            maBit(miesiac.akt_sp, i), maBit(katalog.akt_sp, i), maBit(miesiac.br_sp, i),
            maBit(miesiac.zus_sp, i), maBit(miesiac.ubzdr_sp, i)};
    for (int i = 1; i <= kUjemnych; ++i)
        pozycje_.ujemne[static_cast<std::size_t>(i - 1)] = {
            maBit(miesiac.akt_sm, i), maBit(katalog.akt_sm, i), maBit(miesiac.br_sm, i),
            maBit(miesiac.zus_sm, i), maBit(miesiac.ubzdr_sm, i)};
}

QString ListaPlac::tytul() const {
    const QString miesiac = NapisMiesiaca(rok_, mies_);
    const QString napis = symbol_ == kWszystkieListy ? QStringLiteral("Lista plac za miesiąc ") + miesiac
                                                     : QStringLiteral("Lista plac (") + symbol_ +
                                                           QStringLiteral(") za miesiąc ") + miesiac;
    return zablokowany_ ? napis + QStringLiteral(" - MIESIĄC ZABLOKOWANY") : napis;
}

QList<LiniaListy> ListaPlac::Wczytaj_listep() {
    Recordset& a = o_.sesja.rsPLA;
    if (symbol_ != kWszystkieListy && !a.Find({PLA("LISTA"), Kryterium::Operator::Rowne, symbol_}) &&
        !o_.rozmowa.pytanie(
            QStringLiteral("Lista o podanym symbolu nie istnieje.\nCzy chcesz ją utworzyć ?")))
        symbol_ = kWszystkieListy;
    QList<LiniaListy> wynik;
    wynik.reserve(a.RecordCount());
    for (a.MoveFirst(); !a.EOF_(); a.MoveNext()) {
        const QString lista = a.tekst(PLA("LISTA"));
        if (symbol_ != kWszystkieListy && lista != symbol_) continue;
        wynik.append({{a.liczba(PLA("PRC_ID")), lista}, a.tekst(PLA("NAZ")), a.tekst(PLA("IMIE"))});
    }
    if (wiersz_) ustawNa(*wiersz_);
    return wynik;
}

void ListaPlac::ustawNa(const KluczListy& klucz) {
    for (Recordset* rs : tabeleWiersza(o_.sesja)) (void)rs->Znajdz(klucz.prcId, klucz.lista);
    (void)o_.sesja.UstawPracownika(klucz.prcId);
    wiersz_ = klucz;
}

bool ListaPlac::Wypisz_daneP(const KluczListy& klucz) {
    ustawNa(klucz);
    if (!o_.sesja.rsPRACDP.naWierszu())
        o_.rozmowa.komunikat(
            QStringLiteral("Uwaga. Pracownik o numerze ") + QString::number(klucz.prcId) +
                QStringLiteral(" został usunięty z kadr. Próba liczenia płac może okazać się niemożliwa "
                               "z zawieszeniem programu łącznie. ") +
                QStringLiteral("Usuń pracownika z miesięcznej listy płac."),
            Styl::Wykrzyknik);
    for (Recordset* rs : tabeleWiersza(o_.sesja))
        if (!rs->naWierszu())
            o_.rozmowa.komunikat(QStringLiteral("CRITICAL ERROR !!! Brak rekordu ") +
                                     QString::fromLatin1(rs->tabela().nazwa.data(),
                                                         static_cast<qsizetype>(rs->tabela().nazwa.size())),
                                 Styl::Krytyczny);
    if (!o_.sesja.rsPLA.naWierszu()) wiersz_.reset();
    return wiersz_.has_value();
}

void ListaPlac::wymagajOtwartego() const {
    if (zablokowany_)
        throw Blad(QStringLiteral("Miesiąc %1 jest zablokowany i nie można go zmieniać.")
                       .arg(NapisMiesiaca(rok_, mies_)));
}

void ListaPlac::wymagajWiersza() {
    wymagajOtwartego();
    if (!wiersz_) throw Blad(QStringLiteral("Nie wybrano pracownika z listy płac."));
    // Handles that were read again after a failure stand on their first rows.
    ustawNa(KluczListy(*wiersz_));
    for (const Recordset* rs : tabeleWiersza(o_.sesja))
        if (!rs->naWierszu())
            throw Blad(QStringLiteral("Wiersz pracownika nr %1 jest niepełny: brak rekordu w tabeli %2.")
                           .arg(wiersz_->prcId)
                           .arg(rs->nazwa()));
}

void ListaPlac::zapiszWiersz() {
    Transakcja transakcja(o_.sesja.cnPlace,
                          QStringLiteral("Lista płac %1: pracownik nr %2")
                              .arg(NapisMiesiaca(rok_, mies_))
                              .arg(o_.sesja.rsPLA.naWierszu() ? o_.sesja.rsPLA.liczba(PLA("PRC_ID")) : 0));
    for (Recordset* rs : tabeleWiersza(o_.sesja)) rs->UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

void ListaPlac::CofnijWiersz() {
    for (Recordset* rs : tabeleWiersza(o_.sesja)) rs->CancelBatch();
}

bool ListaPlac::naLiscie(qint64 prcId, const QString& lista) {
    Recordset& a = o_.sesja.rsPLA;
    const Zakladka tu = a.Bookmark();
    const bool jest = a.Znajdz(prcId, lista);
    a.Bookmark(tu);
    return jest;
}

QString ListaPlac::symbolNowegoWiersza() const {
    if (symbol_ != kWszystkieListy || !o_.stale.AktOpWieluList) return symbol_;
    const QString wlasna = o_.sesja.rsPRACPR.tekst(PRACPR("Lista"));
    return wlasna.isEmpty() ? kWszystkieListy : wlasna;
}

void ListaPlac::przepiszIloscZasilkow(Tryb tryb) {
    Sesja& s = o_.sesja;
    static constexpr std::pair<Kolumna, Kolumna> zasilki[] = {
        {PRACZUS("il_z_rodz"), PLA("IL_Z_RODZ")},
        {PRACZUS("il_z_piel"), PLA("IL_Z_PIEL")},
        {PRACZUS("il_z_wych"), PLA("IL_Z_WYCH")},
    };
    const bool sa = std::any_of(std::begin(zasilki), std::end(zasilki),
                                [&](const auto& z) { return s.rsPRACZUS.liczba(z.first) > 0; });
    if (sa &&
        odpowiedzi_.iloscZasilkow.pytaj(
            o_.rozmowa, tryb,
            QStringLiteral(
                "Czy przenosić dane o ilościach zasiłków rodzinnych, wychowawczych i pielęgnacyjnych ?"),
            QStringLiteral(
                "Czy przenieść dane o ilościach zasiłków: rodzinnego, wychowawczego i pielęgnacyjnego ?")))
        for (const auto& [zKadr, naListe] : zasilki) s.rsPLA.ustaw(naListe, s.rsPRACZUS.liczba(zKadr));
}

void ListaPlac::dodajRekordy(qint64 prcId, const QString& lista, Tryb tryb) {
    Sesja& s = o_.sesja;
    for (Recordset* rs : tabeleWiersza(s)) rs->AddNewZero(prcId, lista);
    const Recordset &dp = s.rsPRACDP, &pr = s.rsPRACPR, &zus = s.rsPRACZUS;

    s.rsPLA.ustaw(PLA("NAZ"), dp.tekst(PRACDP("Naz")));
    s.rsPLA.ustaw(PLA("IMIE"), dp.tekst(PRACDP("Imie_1")));
    s.rsPLA.ustaw(PLA("KUP"), pr.kwota(PRACPR("Kup")));
    // Deliberate: the credit is doubled here for doubled limits; the first calculation overwrites it
    // undoubled.
    if (pr.flaga(PRACPR("czy_ulga")))
        s.rsPLA.ustaw(PLA("PPD"), Proporcja(o_.stale.RKwPZ, pr.flaga(PRACPR("czy_2progi")) ? 2 : 1, 12));
    s.rsPLA.ustaw(PLA("US_ID"), pr.liczba(PRACPR("us_id")));
    // The contribution columns start with the rates; the calculation overwrites them with the amounts.
    for (const Kolumna k : {PLA("SKL_FP"), PLA("ST_SKL_FP")}) s.rsPLA.ustaw(k, zus.kwota(PRACZUS("Fp")));
    for (const Kolumna k : {PLA("SKL_FGSP"), PLA("ST_SKLFGSP")}) s.rsPLA.ustaw(k, zus.kwota(PRACZUS("gsp")));
    s.rsPLA.ustaw(PLA("ETAT"), pr.liczba(PRACPR("etat")));
    s.rsPLA.ustaw(PLA("ETAT2"), pr.liczba(PRACPR("etat2")));
    przepiszIloscZasilkow(tryb);

    s.rsPLB.ustaw(PLB("PPE"), zus.kwota(PRACZUS("PPE")));
    s.rsPLB.ustaw(PLB("WSK_FEPRD"), o_.stale.FEprd);
    s.rsPLB.ustaw(PLB("WSK_FRPRD"), o_.stale.FRprd);
    s.rsPLB.ustaw(PLB("WSK_FWPRD"), o_.stale.FWprd);
    s.rsPLB.ustaw(PLB("WSK_FEPRC"), zus.kwota(PRACZUS("wsk_fe")));
    s.rsPLB.ustaw(PLB("WSK_FRPRC"), zus.kwota(PRACZUS("wsk_fr")));
    s.rsPLB.ustaw(PLB("WSK_FCPRC"), zus.kwota(PRACZUS("wsk_fc")));
    s.rsPLB.ustaw(PLB("WSK_UBZDR"), zus.kwota(PRACZUS("wsk_ubzdr")));
    s.rsPLB.ustaw(PLB("WSK_UBR"), o_.stale.BlokujUbruttow ? Waluta::zlotych(100) : o_.stale.WskUbruttow);

    naliczanie_.WypelnijSkladniki();
    naliczanie_.Przelicz_Dni(tryb);
}

void ListaPlac::wymagajPracownika(qint64 prcId) const {
    if (!o_.sesja.UstawPracownika(prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1 w kadrach.").arg(prcId));
}

std::optional<KluczListy> ListaPlac::Nowy_prac(qint64 prcId) {
    wymagajOtwartego();
    wymagajPracownika(prcId);
    const QString lista = symbolNowegoWiersza();
    if (naLiscie(prcId, lista)) {
        o_.rozmowa.komunikat(QStringLiteral("Nie można wprowadzić dwa razy tej samej osoby na jedną listę!"),
                             Styl::Wykrzyknik);
        return std::nullopt;
    }
    Pobierz_Akt();
    wiersz_.reset();
    zmienWiersz([&] { dodajRekordy(prcId, lista, Tryb::Pojedynczy); });
    wiersz_ = KluczListy{prcId, lista};
    return wiersz_;
}

RaportSerii ListaPlac::wykonajSerie(const QString& tytul, qsizetype ile,
                                    const std::function<qint64(qsizetype)>& numer,
                                    const std::function<bool(qsizetype)>& krok) {
    RaportSerii raport;
    odpowiedzi_ = {};
    wiersz_.reset();
    CofnijWiersz();
    naliczanie_.przygotujSerie(ile);
    const auto postep = o_.rozmowa.postep(tytul, static_cast<int>(ile));
    Transakcja transakcja(o_.sesja.cnPlace, tytul);
    for (qsizetype i = 0; i < ile; ++i) {
        const qint64 prcId = numer(i);
        if (!postep->krok(static_cast<int>(i) + 1,
                          QStringLiteral("PROSZĘ CZEKAĆ ! Wyliczanie pracownika nr ") +
                              QString::number(prcId))) {
            raport.przerwana = true;
            break;
        }
        try {
            if (krok(i))
                ++raport.wykonane;
            else
                ++raport.pominiete;
        } catch (const BladBazy&) {
            throw; // the file itself fails: nothing of the batch may stay
        } catch (const Blad& blad) {
            CofnijWiersz();
            (void)naliczanie_.zabierzUwagi();
            raport.niepowodzenia.append({prcId, blad.komunikat()});
            continue;
        }
        raport.dodajUwagi(prcId, naliczanie_.zabierzUwagi());
        for (Recordset* rs : tabeleWiersza(o_.sesja)) rs->UpdateBatch(transakcja);
    }
    transakcja.zatwierdz();
    wiersz_.reset();
    return raport;
}

RaportSerii ListaPlac::DodajPracownikow(const QList<qint64>& numery) {
    wymagajOtwartego();
    Pobierz_Akt();
    return wykonajSerie(
        tytul(), numery.size(), [&](qsizetype i) { return numery[i]; },
        [&](qsizetype i) {
            const qint64 prcId = numery[i];
            wymagajPracownika(prcId);
            const QString lista = symbolNowegoWiersza();
            if (naLiscie(prcId, lista)) return false;
            dodajRekordy(prcId, lista, Tryb::Seria);
            naliczanie_.Przelicz2(Tryb::Seria);
            naliczanie_.Przelicz1(Tryb::Seria);
            return true;
        });
}

bool ListaPlac::Usun_prac() {
    wymagajOtwartego();
    if (!wiersz_) throw Blad(QStringLiteral("Nie wybrano pracownika z listy płac."));
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć pracownika o numerze ") +
                                     QString::number(wiersz_->prcId) +
                                     QStringLiteral(" z miesięcznej listy płac ?")))
        return false;
    CofnijWiersz();
    for (Recordset* rs : tabeleWiersza(o_.sesja))
        if (rs->Znajdz(wiersz_->prcId, wiersz_->lista)) rs->Delete();
    zapiszWiersz();
    wiersz_.reset();
    return true;
}

void ListaPlac::zmienWiersz(const std::function<void()>& zmiana) {
    odpowiedzi_ = {};
    naliczanie_.przygotujWiersz();
    try {
        zmiana();
        zapiszWiersz();
    } catch (...) {
        CofnijWiersz();
        throw;
    }
}

void ListaPlac::obliczWiersz(const std::function<void()>& obliczenie) {
    zmienWiersz([&] {
        try {
            obliczenie();
        } catch (const BladBazy&) {
            throw; // the file fails, not the employee
        } catch (const Blad& blad) {
            const Recordset& a = o_.sesja.rsPLA;
            throw Blad(QStringLiteral("Pracownik nr %1 %2 %3: %4")
                           .arg(a.liczba(PLA("PRC_ID")))
                           .arg(a.tekst(PLA("NAZ")), a.tekst(PLA("IMIE")), blad.komunikat()));
        }
    });
}

void ListaPlac::Przelicz_Dni() {
    wymagajWiersza();
    obliczWiersz([this] { naliczanie_.Przelicz_Dni(Tryb::Pojedynczy); });
}

void ListaPlac::Przelicz2() {
    wymagajWiersza();
    wymagajPracownika(wiersz_->prcId);
    Pobierz_Akt();
    obliczWiersz([this] { naliczanie_.Przelicz2(Tryb::Pojedynczy); });
}

void ListaPlac::Przelicz1() {
    wymagajWiersza();
    wymagajPracownika(wiersz_->prcId);
    obliczWiersz([this] { naliczanie_.Przelicz1(Tryb::Pojedynczy); });
}

RaportSerii ListaPlac::PrzeliczSerie(Obliczenie obliczenie, const QList<KluczListy>& wiersze) {
    wymagajOtwartego();
    if (obliczenie == Obliczenie::PoliczenieDni && !o_.stale.AktRejPrzepDni) {
        naliczanie_.Przelicz_Dni(Tryb::Pojedynczy); // says that counting is off
        return {};
    }
    Pobierz_Akt();
    return wykonajSerie(
        tytul(), wiersze.size(), [&](qsizetype i) { return wiersze[i].prcId; },
        [&](qsizetype i) {
            ustawNa(wiersze[i]);
            wymagajPracownika(wiersze[i].prcId);
            wymagajWiersza();
            switch (obliczenie) {
            case Obliczenie::PoliczenieDni:
                naliczanie_.Przelicz_Dni(Tryb::Seria);
                break;
            case Obliczenie::Przepisanie:
                naliczanie_.Przelicz2(Tryb::Seria);
                break;
            case Obliczenie::Przeliczenie:
                naliczanie_.Przelicz1(Tryb::Seria);
                break;
            }
            return true;
        });
}

void ListaPlac::wykonajLancuch(Lancuch lancuch) {
    constexpr Tryb tryb = Tryb::Pojedynczy;
    Naliczanie& n = naliczanie_;
    n.WyliczPodstawy(tryb);
    if (lancuch == Lancuch::OdPPE) n.WyliczSkladki();
    if (lancuch == Lancuch::OdPPE || lancuch == Lancuch::OdKosztow) n.WyliczNetto();
    if (lancuch == Lancuch::OdPPE || lancuch == Lancuch::OdKosztow || lancuch == Lancuch::OdUlgi)
        n.WyliczUbzdr();
    if (lancuch != Lancuch::OdUbzdr) n.PrzyjmijUbzdrNalezne();
    if (lancuch == Lancuch::OdPPE) n.WyliczUlge();
    n.WyliczPodatek(tryb);
    n.Dowyplaty(tryb);
}

void ListaPlac::pytajOSkladkePPE() {
    Sesja& s = o_.sesja;
    // Deliberate: taken off each time the field is confirmed.
    if (s.rsPLB.kwota(PLB("PPE")) > Waluta{} &&
        o_.rozmowa.pytanie(QStringLiteral("Czy pomniejszyć kwotę do wypłaty o składkę w ramach PPE ?")))
        s.rsPLA.ustaw(PLA("DO_WYPLATY"), s.rsPLA.kwota(PLA("DO_WYPLATY")) - s.rsPLB.kwota(PLB("PPE")));
}

bool ListaPlac::przyjmijPrzelew(Waluta kwota) {
    Recordset& a = o_.sesja.rsPLA;
    const Waluta doWyplaty = a.kwota(PLA("DO_WYPLATY"));
    if (kwota > doWyplaty) {
        if (!o_.rozmowa.pytanie(
                QStringLiteral("Kwota przelewu nie może być większa od kwoty wypłaty. Czy przeznaczyć całą "
                               "kwotę wypłaty na przelew ?")))
            return false;
        kwota = doWyplaty;
    }
    a.ustaw(PLA("PRZELEWEM"), kwota);
    return true;
}

bool ListaPlac::ZmienKwote(const PoleListy& pole, Waluta kwota) {
    wymagajWiersza();
    bool przyjeta = true;
    zmienWiersz([&] {
        if (pole.lancuch == Lancuch::Przelew) {
            przyjeta = przyjmijPrzelew(kwota);
            return;
        }
        (pole.kolumna.tabela == &PLA ? o_.sesja.rsPLA : o_.sesja.rsPLB).ustaw(pole.kolumna, kwota);
        if (pole.lancuch == Lancuch::ZmianaPodatku)
            pytajOSkladkePPE();
        else if (pole.lancuch != Lancuch::Zaden)
            wykonajLancuch(pole.lancuch);
    });
    return przyjeta;
}

void ListaPlac::WpiszSK() {
    wymagajWiersza();
    o_.sesja.rsPLS.UpdateBatch(u"Składniki wiersza listy płac");
}

void ListaPlac::WpiszDatyGr() {
    wymagajWiersza();
    o_.sesja.rsPLD.UpdateBatch(u"Okresy składników wiersza listy płac");
}

void ListaPlac::WpiszDni() {
    wymagajWiersza();
    Recordset& a = o_.sesja.rsPLA;
    a.ustaw(PLA("DN_PR"), a.liczba(PLA("DN_RO")) + a.liczba(PLA("DN_SO")) + a.liczba(PLA("DN_NI")));
    zapiszWiersz();
}

bool ListaPlac::DniZgodneZMiesiacem() const {
    const Recordset& a = o_.sesja.rsPLA;
    qint64 dni = 0;
    for (const Kolumna k :
         {PLA("DN_RO"), PLA("DN_SO"), PLA("DN_NI"), PLA("DN_URL"), PLA("DN_ZAS"), PLA("DN_INN")})
        dni += a.liczba(k);
    return dni == DniWMiesiacu(rok_, mies_);
}

void ListaPlac::ZapiszSumy() {
    if (zablokowany_) return; // a blocked month is never written
    static constexpr std::pair<Kolumna, Kolumna> sumyA[] = {
        {PLA("BRUTTO"), PLACE("sum_brutto")}, {PLA("PODATEK"), PLACE("sum_podat")},
        {PLA("NETTO"), PLACE("sum_netto")},   {PLA("SKL_FP"), PLACE("sum_fp")},
        {PLA("SKL_FGSP"), PLACE("sum_fgsp")}, {PLA("KUP"), PLACE("sum_kup")},
        {PLA("PPD"), PLACE("sum_ppd")},       {PLA("DO_WYPLATY"), PLACE("do_wyplaty")},
    };
    static constexpr std::pair<Kolumna, Kolumna> sumyB[] = {
        {PLB("FEPRD"), PLACE("sum_feprd")}, {PLB("FRPRD"), PLACE("sum_frprd")},
        {PLB("FEPRC"), PLACE("sum_feprc")}, {PLB("FRPRC"), PLACE("sum_frprc")},
        {PLB("FCPRC"), PLACE("sum_fc")},    {PLB("FWPRD"), PLACE("sum_fw")},
        {PLB("UBZDR"), PLACE("sum_ubzdr")},
    };
    Sesja& s = o_.sesja;
    if (!s.ZnajdzMiesiac(rok_, mies_)) return;
    Recordset& a = s.rsPLA;
    std::array<Waluta, std::size(sumyA)> a1{};
    std::array<Waluta, std::size(sumyB)> b1{};
    Waluta inne;
    int ile = 0;
    // All lists of the month, whatever symbol is open.
    for (a.MoveFirst(); !a.EOF_(); a.MoveNext(), ++ile) {
        for (std::size_t i = 0; i < a1.size(); ++i) a1[i] += a.kwota(sumyA[i].first);
        inne += a.kwota(PLA("DODATKI")) - a.kwota(PLA("POTRACENIA"));
        if (s.rsPLB.Znajdz(a.liczba(PLA("PRC_ID")), a.tekst(PLA("LISTA"))))
            for (std::size_t i = 0; i < b1.size(); ++i) b1[i] += s.rsPLB.kwota(sumyB[i].first);
    }
    for (std::size_t i = 0; i < a1.size(); ++i) s.rsPLACE.ustaw(sumyA[i].second, a1[i]);
    for (std::size_t i = 0; i < b1.size(); ++i) s.rsPLACE.ustaw(sumyB[i].second, b1[i]);
    s.rsPLACE.ustaw(PLACE("sum_inne"), inne);
    s.rsPLACE.ustaw(PLACE("il_wyplat"), ile);
    s.rsPLACE.UpdateBatch(QStringLiteral("Sumy listy płac %1").arg(NapisMiesiaca(rok_, mies_)));
    if (wiersz_) ustawNa(*wiersz_);
}

} // namespace tornel::payroll
