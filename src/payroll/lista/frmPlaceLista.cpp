#include "payroll/lista/frmPlaceLista.h"
#include "common/Blad.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "okna/PoleSzukania.h"
#include "okna/WidokListy.h"
#include "okna/WierszSum.h"
#include "okna/Wyglad.h"
#include "payroll/lista/frmPlaceListaPasek.h"
#include "payroll/lista/frmPlaceListaZakladki.h"
#include "payroll/lista/Przelewy.h"
#include "personnel/frmWybPr.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QHash>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <set>

namespace tornel::payroll {

using schemat::PLA;

namespace {

enum KolumnaPlac { LpNazwisko, LpNumer, LpSymbol };
constexpr int kSzerokoscListy = 62 * Wyglad::kSiatka;

QList<KolumnaListy> kolumnyListy() {
    return {{QStringLiteral("NAZWISKO")},
            {QStringLiteral("NR"), Qt::AlignRight},
            {QStringLiteral("LISTA")},
            {QStringLiteral("BRUTTO"), Qt::AlignRight},
            {QStringLiteral("DO WYPŁATY"), Qt::AlignRight}};
}

QLabel* napis(const QString& nazwa) {
    auto* etykieta = new QLabel;
    etykieta->setObjectName(nazwa);
    etykieta->setTextFormat(Qt::PlainText);
    return etykieta;
}

} // namespace

frmPlaceLista::frmPlaceLista(Otoczenie& otoczenie, RokMies miesiac, const QString& symbol, QWidget* rodzic,
                             PortWydrukow wydruki)
    : Okno(QStringLiteral("frmPlaceLista"), rodzic, PoEnterze::NastepnePole), o_(otoczenie),
      wydruki_(std::move(wydruki)), lista_(otoczenie, miesiac.rok, miesiac.mies, symbol, &wykazy_),
      lvwPlace_(new WidokListy(kolumnyListy(), {36, 9, 10, 21, 24})), sumyPlace_(new WierszSum(*lvwPlace_)),
      zakladki_(new ZakladkiListy(otoczenie, lista_)), pasek_(new PasekListy(wydruki_)),
      labPracownik_(napis(QStringLiteral("labPracownik"))), labKwoty_(napis(QStringLiteral("labKwoty"))),
      labIleWierszy_(napis(QStringLiteral("labIleWierszy"))), labUwaga_(Wyglad::baner({}, this)) {
    const Klepsydra klepsydra;
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(Wyglad::baner(
        lista_.zablokowany()
            ? QStringLiteral("Miesiąc jest zablokowany: dane można oglądać, nie można ich zmieniać.")
            : QString(),
        this));
    uklad->addWidget(dzielnik(lewaStrona(), kSzerokoscListy, prawaStrona()), 1);
    uklad->addWidget(pasek_);
    budujSkroty();
    resize(156 * Wyglad::kSiatka, 92 * Wyglad::kSiatka);

    polacz();
    linie_ = lista_.Wczytaj_listep();
    pokazListe({});
    lvwPlace_->setFocus();
    if (linie_.isEmpty()) pasek_->przejdzDoNowy();
}

frmPlaceLista::~frmPlaceLista() = default;

void frmPlaceLista::polacz() {
    connect(lvwPlace_, &WidokListy::wybrano, this, &frmPlaceLista::wybierzWiersz);
    connect(pasek_, &PasekListy::nowy, this, &frmPlaceLista::nowy);
    connect(pasek_, &PasekListy::usun, this, &frmPlaceLista::usun);
    connect(pasek_, &PasekListy::przepisz, this, &frmPlaceLista::przepisz);
    connect(pasek_, &PasekListy::wydruk, this, &frmPlaceLista::drukuj);
    connect(pasek_, &PasekListy::przeliczDni, this, &frmPlaceLista::przeliczDni);
    connect(pasek_, &PasekListy::przelicz, this, &frmPlaceLista::przelicz);
    connect(pasek_, &PasekListy::caloscNaKonto, this, &frmPlaceLista::caloscNaKonto);
    connect(pasek_, &PasekListy::caloscNaKontoWszystkich, this, &frmPlaceLista::caloscNaKontoWszystkich);
    connect(pasek_, &PasekListy::seria, this, &frmPlaceLista::seria);
    connect(pasek_, &PasekListy::powrot, this, &QDialog::reject);
    connect(zakladki_, &ZakladkiListy::kwotyZmienione, this, [this] {
        pokazNaglowek();
        przejrzyjBiezacy();
    });
    connect(zakladki_, &ZakladkiListy::skladnikiZmienione, this, [this] { wskazPrzelicz(true); });
}

void frmPlaceLista::budujSkroty() {
    const auto skrot = [this](const QKeySequence& klawisze, auto czynnosc) {
        connect(new QShortcut(klawisze, this), &QShortcut::activated, this, czynnosc);
    };
    pasek_->podlaczListe(*lvwPlace_);
    for (int i = 0; i < zakladki_->count(); ++i)
        skrot(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)),
              [this, i] { zakladki_->setCurrentIndex(i); });
}

QWidget* frmPlaceLista::lewaStrona() {
    lvwPlace_->setObjectName(QStringLiteral("lvwPlace"));
    sumyPlace_->setObjectName(QStringLiteral("sumyPlace"));
    auto* lewa = new QWidget;
    auto* uklad = new QVBoxLayout(lewa);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(new PoleSzukania(*lvwPlace_, LpNumer, LpNazwisko));
    auto* zSumami = new QVBoxLayout;
    zSumami->setSpacing(0);
    zSumami->addWidget(lvwPlace_, 1);
    zSumami->addWidget(sumyPlace_);
    uklad->addLayout(zSumami, 1);
    uklad->addWidget(labIleWierszy_);
    auto* sposob = new QLabel(QStringLiteral("Każda zmiana zapisuje się od razu."));
    sposob->setObjectName(QStringLiteral("labZmiana"));
    sposob->setProperty("podpowiedz", true);
    uklad->addWidget(sposob);
    return lewa;
}

QWidget* frmPlaceLista::prawaStrona() {
    QFont pismo = labPracownik_->font();
    pismo.setPointSize(pismo.pointSize() + 2);
    pismo.setBold(true);
    labPracownik_->setFont(pismo);
    auto* prawa = new QWidget;
    auto* uklad = new QVBoxLayout(prawa);
    uklad->setContentsMargins(0, 0, 0, 0);
    auto* naglowek = new QHBoxLayout;
    naglowek->addWidget(labPracownik_, 1);
    naglowek->addWidget(labKwoty_);
    // It keeps its place while there is nothing to say, so that no field moves under the clerk's hand.
    labUwaga_->setObjectName(QStringLiteral("labUwaga"));
    QSizePolicy miejsce = labUwaga_->sizePolicy();
    miejsce.setRetainSizeWhenHidden(true);
    labUwaga_->setSizePolicy(miejsce);
    uklad->addLayout(naglowek);
    uklad->addWidget(labUwaga_);
    uklad->addWidget(zakladki_, 1);
    return prawa;
}

std::optional<KluczListy> frmPlaceLista::biezacy() const {
    const qint64 id = lvwPlace_->wybrany();
    if (id < 0) return std::nullopt;
    return linie_.at(id).klucz;
}

WierszListy frmPlaceLista::wierszListy(qint64 id) const {
    const LiniaListy& l = linie_.at(id);
    const auto stan = doUwagi_.find({l.klucz.prcId, l.klucz.lista});
    return {id,
            {QString(l.nazwisko + QLatin1Char(' ') + l.imie).trimmed(), FormatNumeru(l.klucz.prcId),
             l.klucz.lista.toUpper(), NapisKwoty(sumy_.wiersz(id).brutto),
             NapisKwoty(sumy_.wiersz(id).doWyplaty)},
            stan == doUwagi_.end() ? QString() : stan->second.opis(),
            Waga::Wazna};
}

void frmPlaceLista::pokazListe(const std::optional<KluczListy>& zaznacz) {
    przejrzyjWiersze();
    sumy_.wczytaj(o_.sesja.rsPLA, linie_);
    pokazRazem();
    QList<WierszListy> wiersze;
    wiersze.reserve(linie_.size());
    qint64 wybrany = -1;
    for (const LiniaListy& l : linie_) {
        const qint64 id = wiersze.size();
        if (l.klucz == zaznacz) wybrany = id;
        wiersze.append(wierszListy(id));
    }
    setWindowTitle(lista_.tytul());
    labIleWierszy_->setText(QStringLiteral("Pracowników na liście: %1").arg(linie_.size()));
    lvwPlace_->ustawPodpowiedz(
        lista_.zablokowany()
            ? QStringLiteral("Lista jest pusta.")
            : QStringLiteral(
                  "Lista jest pusta.\nPrzycisk „Nowy prac.” dopisuje do niej pracowników z kadr."));
    pasek_->ustawDostepnosc(lista_.zablokowany(), linie_.isEmpty());
    lvwPlace_->ustaw(std::move(wiersze), wybrany);
    if (!linie_.isEmpty()) return;
    zakladki_->Wyczysc_daneP();
    zakladki_->Blokada(true);
    pokazNaglowek();
    pokazOznaczenie();
}

void frmPlaceLista::pokazRazem() {
    const auto& razem = sumy_.razem();
    const QString zaDuzo = QStringLiteral("?"); // no amount can hold it
    sumyPlace_->ustaw({QStringLiteral("Razem"),
                       {},
                       {},
                       razem ? NapisKwoty(razem->brutto) : zaDuzo,
                       razem ? NapisKwoty(razem->doWyplaty) : zaDuzo});
}

void frmPlaceLista::wybierzWiersz(qint64 id) {
    zakladki_->zakoncz();
    if (zakladki_->wlasnieNieZrozumiano() && lista_.wiersz() && *lista_.wiersz() != linie_.at(id).klucz) {
        // The row stays until the clerk has seen what its field did not take; not at once, since the view is
        // still in the middle of its own change.
        const auto tu = std::ranges::find(linie_, *lista_.wiersz(), &LiniaListy::klucz) - linie_.begin();
        QMetaObject::invokeMethod(
            this, [this, tu] { lvwPlace_->wybierz(tu); }, Qt::QueuedConnection);
        return;
    }
    przeliczNastepne_ = false;
    wypiszWiersz(linie_.at(id).klucz);
}

void frmPlaceLista::wypiszWiersz(const KluczListy& klucz) {
    const bool jest = lista_.Wypisz_daneP(klucz);
    zakladki_->Wypisz_daneP();
    zakladki_->Blokada(!jest || lista_.zablokowany());
    pokazNaglowek();
    pokazOznaczenie();
}

void frmPlaceLista::wypiszBiezacy() {
    if (const auto klucz = biezacy()) wypiszWiersz(*klucz);
}

void frmPlaceLista::pokazPonownie() {
    zakladki_->porzucSumy();
    if (o_.sesja.rsPLA.otwarty()) {
        wypiszBiezacy();
        przejrzyjBiezacy();
    } else {
        // The month itself is gone: nothing is left that the way out could store.
        QDialog::done(Rejected); // NOLINT(bugprone-parent-virtual-call)
    }
}

bool frmPlaceLista::przygotujCofniecie() {
    zakladki_->zakoncz();
    return !zakladki_->wlasnieNieZrozumiano();
}

void frmPlaceLista::wczytajPonownie() {
    if (!o_.sesja.rsPLA.otwarty()) return pokazPonownie();
    const auto klucz = biezacy();
    zakladki_->porzucSumy();
    linie_ = lista_.Wczytaj_listep();
    pokazListe(klucz);
}

void frmPlaceLista::pokazNaglowek() {
    const Recordset& a = o_.sesja.rsPLA;
    const bool jest = lista_.wiersz() && a.naWierszu();
    labPracownik_->setText(jest ? FormatNumeru(a.liczba(PLA("PRC_ID"))) + QStringLiteral("  ") +
                                      a.tekst(PLA("NAZ")) + QLatin1Char(' ') + a.tekst(PLA("IMIE"))
                                : QString());
    labKwoty_->setText(
        jest ? QStringLiteral("Brutto: %1     Do wypłaty: %2")
                   .arg(NapisKwoty(a.kwota(PLA("BRUTTO"))), NapisKwoty(a.kwota(PLA("DO_WYPLATY"))))
             : QString());
}

void frmPlaceLista::przejrzyjWiersze() {
    doUwagi_.clear();
    Sesja& s = o_.sesja;
    for (const WierszDoUwagi& w : PrzejrzyjWiersze(lista_.pozycje(), s.rsPLA, s.rsPLS))
        doUwagi_.emplace(Klucz{w.prcId, w.lista}, w.stan);
}

void frmPlaceLista::przejrzyjBiezacy() {
    const qint64 id = lvwPlace_->wybrany();
    if (id < 0 || lista_.wiersz() != linie_.at(id).klucz || !o_.sesja.rsPLA.naWierszu()) return;
    const KluczListy& klucz = linie_.at(id).klucz;
    const StanWiersza stan =
        KontrolaWierszy(lista_.pozycje())
            .sprawdz(o_.sesja.rsPLA.biezacyWiersz(), o_.sesja.rsPLS.szukaj(klucz.prcId, klucz.lista));
    doUwagi_.erase({klucz.prcId, klucz.lista});
    if (stan.wymagaUwagi()) doUwagi_.emplace(Klucz{klucz.prcId, klucz.lista}, stan);
    sumy_.odswiez(id, o_.sesja.rsPLA, klucz);
    pokazRazem();
    const WierszListy wiersz = wierszListy(id);
    lvwPlace_->lista().zmien(id, wiersz.teksty, wiersz.uwaga, wiersz.waga);
    pokazOznaczenie();
}

void frmPlaceLista::wskazPrzelicz(bool tak) {
    przeliczNastepne_ = tak;
    przejrzyjBiezacy();
}

void frmPlaceLista::pokazOznaczenie() {
    const auto klucz = biezacy();
    const auto uwaga = klucz ? doUwagi_.find({klucz->prcId, klucz->lista}) : doUwagi_.end();
    const StanWiersza stan = uwaga == doUwagi_.end() ? StanWiersza{} : uwaga->second;
    const bool czeka = klucz && (przeliczNastepne_ || stan.niePoliczony);
    pasek_->oznaczDoPrzeliczenia(czeka);
    zakladki_->wyroznij(ZakladkiListy::Placa, czeka);
    zakladki_->wyroznij(ZakladkiListy::Dodatnie, false);
    Wyglad::ustawBaner(*labUwaga_, stan.opis());
}

void frmPlaceLista::powiedzOUwagach() const {
    if (lista_.zablokowany()) return;
    QList<WierszDoUwagi> naLiscie;
    for (const LiniaListy& l : linie_)
        if (const auto w = doUwagi_.find({l.klucz.prcId, l.klucz.lista}); w != doUwagi_.end())
            naLiscie.append({l.klucz.prcId, l.klucz.lista, w->second});
    if (naLiscie.isEmpty()) return;
    o_.rozmowa.komunikat(QStringLiteral("Ta lista płac wymaga uwagi.\n") + OpisDoUwagi(naLiscie),
                         Styl::Wykrzyknik);
}

void frmPlaceLista::nowy() {
    zakladki_->zakoncz();
    const QList<qint64> osoby = frmWybPr::wybierz(o_, kTrybPracujacy, frmWybPr::Ilu::Wielu, this);
    if (osoby.isEmpty()) return wypiszBiezacy(); // the picker has moved the personnel handles
    const Klepsydra klepsydra;
    zakladki_->porzucSumy();
    if (osoby.size() == 1)
        dodajJednego(osoby.first());
    else
        dodajWielu(osoby);
}

void frmPlaceLista::dodajJednego(qint64 prcId) {
    const auto dodany = lista_.Nowy_prac(prcId);
    if (!dodany) return wypiszBiezacy();
    linie_ = lista_.Wczytaj_listep();
    pokazListe(dodany);
    wskazPrzelicz(true);
    zakladki_->setCurrentIndex(ZakladkiListy::Dodatnie);
    zakladki_->wyroznij(ZakladkiListy::Dodatnie, true);
}

void frmPlaceLista::dodajWielu(const QList<qint64>& osoby) {
    auto zaznacz = biezacy();
    std::set<Klucz> przedtem;
    for (const LiniaListy& l : linie_) przedtem.emplace(l.klucz.prcId, l.klucz.lista);
    const RaportSerii raport = lista_.DodajPracownikow(osoby);
    linie_ = lista_.Wczytaj_listep();
    QHash<qint64, KluczListy> dodani;
    for (const LiniaListy& l : linie_)
        if (!przedtem.contains({l.klucz.prcId, l.klucz.lista})) dodani.insert(l.klucz.prcId, l.klucz);
    const auto ostatni =
        std::find_if(osoby.rbegin(), osoby.rend(), [&](qint64 nr) { return dodani.contains(nr); });
    if (ostatni != osoby.rend()) zaznacz = dodani.value(*ostatni);
    pokazListe(zaznacz);
    raport.pokaz(o_.rozmowa);
}

void frmPlaceLista::usun() {
    zakladki_->zakoncz();
    const auto klucz = biezacy();
    if (!klucz || !lista_.Usun_prac()) return;
    const qint64 sasiad = lvwPlace_->sasiad(lvwPlace_->wybrany());
    const auto zaznacz = sasiad >= 0 ? std::optional(linie_.at(sasiad).klucz) : std::nullopt;
    linie_ = lista_.Wczytaj_listep();
    pokazListe(zaznacz);
}

void frmPlaceLista::przelicz() {
    zakladki_->zakoncz();
    const Klepsydra klepsydra;
    if (!lista_.Przelicz1()) return;
    zakladki_->przyjmijSumy();
    zakladki_->Wypisz_daneP();
    pokazNaglowek();
    wskazPrzelicz(false);
}

void frmPlaceLista::przepisz() {
    zakladki_->zakoncz();
    const Klepsydra klepsydra;
    if (!lista_.Przelicz2()) return;
    zakladki_->porzucSumy();
    zakladki_->Wypisz_daneP();
    wskazPrzelicz(true);
}

void frmPlaceLista::drukuj(const QString& napis) {
    zakladki_->zakoncz(); // what is typed goes onto the paper
    const auto klucz = biezacy();
    wydruki_.drukuj(napis, lista_, klucz ? std::optional(klucz->prcId) : std::nullopt, this);
    wypiszBiezacy();
}

void frmPlaceLista::przeliczDni() {
    zakladki_->zakoncz();
    if (!lista_.Przelicz_Dni()) return;
    zakladki_->Wypisz_daneP();
    zakladki_->setCurrentIndex(ZakladkiListy::CzasPracy);
}

void frmPlaceLista::seria(const QList<Obliczenie>& obliczenia) {
    zakladki_->zakoncz();
    const Klepsydra klepsydra;
    zakladki_->porzucSumy();
    const RaportSerii raport = lista_.PrzeliczSerie(obliczenia, klucze());
    poSerii();
    raport.pokaz(o_.rozmowa);
}

void frmPlaceLista::poSerii() {
    przeliczNastepne_ = false;
    pokazListe(biezacy());
}

void frmPlaceLista::caloscNaKonto() {
    zakladki_->zakoncz();
    if (!CaloscNaKonto(o_, lista_)) return;
    zakladki_->Wypisz_daneP();
    przejrzyjBiezacy();
}

void frmPlaceLista::caloscNaKontoWszystkich() {
    zakladki_->zakoncz();
    const Klepsydra klepsydra;
    const RaportSerii raport = CaloscNaKontoWszystkich(o_, lista_, klucze());
    poSerii();
    raport.pokaz(o_.rozmowa);
}

QList<KluczListy> frmPlaceLista::klucze() const {
    QList<KluczListy> wynik;
    for (const LiniaListy& l : linie_) wynik.append(l.klucz);
    return wynik;
}

bool frmPlaceLista::moznaZamknac() {
    zakladki_->zakoncz();
    if (zakladki_->wlasnieNieZrozumiano()) return false;
    powiedzOUwagach();
    const Klepsydra klepsydra;
    try {
        lista_.ZapiszSumy();
    } catch (const Blad& blad) {
        // Sums that cannot be formed or stored must not keep the clerk on the screen: they are made anew at
        // the next closing.
        o_.rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
    }
    o_.sesja.ZamknijMiesiac();
    return true;
}

void frmPlaceLista::nastepnePole() {
    focusNextChild();
    // Past the last field the row is ready to be computed.
    if (!zakladki_->isAncestorOf(focusWidget())) pasek_->przejdzDoPrzelicz();
}

void frmPlaceLista::keyPressEvent(QKeyEvent* zdarzenie) {
    if (zdarzenie->key() != Qt::Key_Escape || !zakladki_->cofnijWpisywane()) Okno::keyPressEvent(zdarzenie);
}

} // namespace tornel::payroll
