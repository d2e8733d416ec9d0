#include "payroll/lista/frmPlaceListaZakladki.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "okna/PamiecOkien.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include "payroll/lista/PolaListy.h"
#include "payroll/lista/SumyListy.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

namespace tornel::payroll {

using schemat::PLB;

namespace {

const QString kWyslane = QStringLiteral("txtWyslaneMCS");
const QString kInneWolne = QStringLiteral("txtInnewolne");
/// The amounts that the eye looks for first.
constexpr QStringView kGlowne[] = {u"txtBrutto", u"txtNetto", u"txtPodatek19", u"txtDoWyplaty"};
constexpr QStringView kPodstawySkladek[] = {u"txtPodstawaZUS", u"txtPodstawaUbzdr"};
constexpr QStringView kPolaSum[] = {u"txtPodstawaZUS", u"txtPodstawaUbzdr", u"txtSkladki", u"txtPoPodatku",
                                    ekranListy::kPozostale};
const QString kKluczZerowych = QStringLiteral("frmPlaceLista/bezZerowych");
/// Room for the way to the amount to pay with the components beside it, in digits.
constexpr int kZnakowObok = 136;

QString bezMnemonika(QString tekst) { return tekst.replace(QLatin1Char('&'), QLatin1String("&&")); }

/// A nameless component still needs a caption of its own.
QString podpisSkladnika(const QString& nazwa) {
    return bezMnemonika(nazwa.isEmpty() ? QStringLiteral("?") : nazwa) + QLatin1Char(':');
}

/// The amount and its caption as one of those that the others make up.
void wyroznijSume(const QWidget& strony, QWidget& pole) {
    Wyglad::oznaczGlowne(pole);
    for (QLabel* podpis : strony.findChildren<QLabel*>())
        if (podpis->buddy() == &pole) Wyglad::oznaczGlowne(*podpis);
}

/// As wide as what it scrolls, also when captions grow.
class PrzewijanaWPionie : public QScrollArea {
public:
    PrzewijanaWPionie() {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }
    [[nodiscard]] QSize sizeHint() const override {
        return {widget()->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                QScrollArea::sizeHint().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return {sizeHint().width(), QScrollArea::minimumSizeHint().height()};
    }
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override {
        if (obiekt == widget() && zdarzenie->type() == QEvent::LayoutRequest) updateGeometry();
        return QScrollArea::eventFilter(obiekt, zdarzenie);
    }
};

QWidget* przewijana(QWidget* strona, QScrollArea* przewijanie = new QScrollArea) {
    przewijanie->setWidget(strona);
    przewijanie->setWidgetResizable(true);
    // The ground of the tab shows through, as on the tabs that need no scrolling.
    strona->setAutoFillBackground(false);
    przewijanie->viewport()->setAutoFillBackground(false);
    przewijanie->setFocusPolicy(Qt::NoFocus);
    przewijanie->setFrameShape(QFrame::NoFrame);
    return przewijanie;
}

/// The form "99.99%": money with its two places, a whole number as it is.
QString tekstStawki(const Wartosc& stawka) {
    if (const auto* liczba = std::get_if<qint64>(&stawka)) return QString::number(*liczba) + QLatin1Char('%');
    const auto* procent = std::get_if<Waluta>(&stawka);
    return FormatKwoty(procent ? *procent : Waluta{}) + QLatin1Char('%');
}

} // namespace

ZrodloWiersza::ZrodloWiersza(Sesja& sesja, const ListaPlac& lista)
    : sesja_(sesja), lista_(lista), wiersze_{&sesja.rsPLA, &sesja.rsPLB, &sesja.rsPLS, &sesja.rsPLD} {}

Wartosc ZrodloWiersza::czytaj(const Pole& pole) const {
    const auto suma = static_cast<SumaEkranu>(pole.klucz);
    if (suma != SumaEkranu::Brak) {
        const auto kwota = czytajSume(suma);
        return kwota ? Wartosc(FormatKwoty(*kwota)) : Null;
    }
    Wartosc wartosc = wiersze_.czytaj(pole);
    const auto* tekst = std::get_if<QString>(&wartosc);
    // Not yet sent shows as "N", whether or not the row says so.
    if (pole.nazwa == kWyslane && (!tekst || tekst->trimmed().isEmpty())) return QStringLiteral("N");
    return wartosc;
}

std::optional<Waluta> ZrodloWiersza::czytajSume(SumaEkranu suma) const {
    if (suma == SumaEkranu::PodstawaZUS || suma == SumaEkranu::PodstawaUbzdr) {
        if (!sumyWiersza_ || sumyWiersza_ != lista_.wiersz()) return {};
        return suma == SumaEkranu::PodstawaZUS ? lista_.sumy().PodstawaZUS : lista_.sumy().PodstawaUbzdr;
    }
    if (!lista_.wiersz() || !sesja_.rsPLA.naWierszu()) return {};
    try {
        const DrogaWyplaty droga =
            PoliczDroge(sesja_.rsPLA.biezacyWiersz(),
                        sesja_.rsPLB.szukaj(lista_.wiersz()->prcId, lista_.wiersz()->lista));
        return suma == SumaEkranu::Skladki     ? droga.skladki
               : suma == SumaEkranu::PoPodatku ? droga.poPodatku
                                               : droga.pozostale;
    } catch (const Przepelnienie&) {
        return {}; // of an import; no amount can hold it
    }
}

ZakladkiListy::ZakladkiListy(Otoczenie& otoczenie, ListaPlac& lista, QWidget* rodzic)
    : QTabWidget(rodzic), o_(otoczenie), lista_(lista), zrodlo_(otoczenie.sesja, lista), wiazanie_(zrodlo_) {
    setObjectName(QStringLiteral("tabPlace"));
    using namespace ekranListy;
    addTab(stronaPlacy(), QStringLiteral("PŁACA"));
    addTab(stronaSkladnikow(dodatnie_, QStringLiteral("chkBezZerowych"), polaDodatnie()),
           QStringLiteral("SKŁADNIKI DODATNIE"));
    addTab(stronaSkladnikow(ujemne_, QStringLiteral("chkBezZerowychU"), polaUjemne()),
           QStringLiteral("SKŁADNIKI UJEMNE"));
    addTab(strona({dniMiesiaca(), dniUrlopow(), swiadczenia()}), QStringLiteral("CZAS PRACY"));
    addTab(strona({inneLewa(), innePrawa()}), QStringLiteral("UBEZPIECZENIA I INNE"));
    for (int i = 0; i < count(); ++i) setTabToolTip(i, QStringLiteral("Alt+%1").arg(i + 1));
    setIconSize(QSize(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka));
    tabBar()->setFocusPolicy(Qt::ClickFocus); // from the list the Tab key leads straight to the fields
    wykoncz();
    NazwySkladnikow();
    ukryjZerowe(!pamiecOkien::ustawienie(kKluczZerowych).isEmpty());
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &ZakladkiListy::zapisz);
    connect(this, &QTabWidget::currentChanged, this, &ZakladkiListy::rozmiesc);
}

void ZakladkiListy::przyjmij(const PoleEkranu& pole, const Pole& zbudowane) {
    kolumny_.insert(zbudowane.nazwa, zbudowane.kolumna);
    if (pole.stawka.tabela) zeStawka_.append(&pole);
}

QGroupBox* ZakladkiListy::grupa(const GrupaEkranu& grupa) {
    QList<Pole> pola;
    for (const PoleEkranu& p : grupa.pola) {
        pola.append(ekranListy::pole(p));
        przyjmij(p, pola.last());
    }
    QGroupBox* ramka = wiazanie_.grupa(grupa.tytul.toString(), pola);
    if (grupa.tytul == ekranListy::kMultiCash) ramka->setVisible(o_.stale.MCSAkt);
    return ramka;
}

QWidget* ZakladkiListy::kolumna(KolumnaEkranu grupy) {
    auto* kolumna = new QWidget;
    auto* uklad = new QVBoxLayout(kolumna);
    uklad->setContentsMargins(0, 0, 0, 0);
    for (const GrupaEkranu& g : grupy) uklad->addWidget(grupa(g));
    uklad->addStretch();
    opiszStawki();
    // Captions of one width bring the amounts of all groups into one column.
    int szerokosc = 0;
    const auto napisy = kolumna->findChildren<QLabel*>();
    for (const QLabel* napis : napisy) szerokosc = std::max(szerokosc, napis->sizeHint().width());
    for (QLabel* napis : napisy)
        if (napis->buddy()) napis->setMinimumWidth(szerokosc);
    return kolumna;
}

QWidget* ZakladkiListy::strona(const QList<KolumnaEkranu>& kolumny) {
    auto* strona = new QWidget;
    auto* uklad = new QHBoxLayout(strona);
    for (const KolumnaEkranu& k : kolumny) uklad->addWidget(kolumna(k));
    uklad->addStretch();
    return strona;
}

void ZakladkiListy::dodajDoDrogi(ekranListy::CzescDrogi czesc, QList<Pole>& pola) {
    for (const PoleEkranu& p : ekranListy::drogaWyplaty(czesc)) {
        pola.append(ekranListy::pole(p));
        przyjmij(p, pola.last());
    }
}

void ZakladkiListy::dodajSkladnikiDrogi(bool brutto, bool dodatnie, bool ujemne, QList<Pole>& pola) const {
    for (int i = 1; dodatnie && i <= kDodatnich; ++i)
        if (lista_.pozycje().dodatnia(i).brutto == brutto)
            pola.append(ekranListy::skladnikDrogi(ekranListy::kDrogaPlus, i));
    for (int j = 1; ujemne && j <= kUjemnych; ++j)
        if (lista_.pozycje().ujemna(j).brutto == brutto)
            pola.append(ekranListy::skladnikDrogi(ekranListy::kDrogaMinus, j));
}

QWidget* ZakladkiListy::droga() {
    using ekranListy::CzescDrogi;
    QList<Pole> pola;
    dodajSkladnikiDrogi(true, true, true, pola);
    dodajDoDrogi(CzescDrogi::DoPodatku, pola);
    dodajSkladnikiDrogi(false, true, false, pola);
    dodajDoDrogi(CzescDrogi::Dodatki, pola);
    dodajSkladnikiDrogi(false, false, true, pola);
    dodajDoDrogi(CzescDrogi::Potracenia, pola);
    dodajDoDrogi(CzescDrogi::DoWyplaty, pola);
    QGroupBox* ramka = wiazanie_.grupa(QStringLiteral("OD SKŁADNIKÓW DO WYPŁATY"), pola);
    // Close together, so that its end is seen with its beginning.
    if (auto* siatka = qobject_cast<QGridLayout*>(ramka->findChild<SiatkaPol*>()->layout()))
        siatka->setVerticalSpacing(1);
    return ramka;
}

QWidget* ZakladkiListy::stronaPlacy() {
    auto* lewa = new QWidget;
    auto* ukladLewej = new QVBoxLayout(lewa);
    ukladLewej->setContentsMargins(0, 0, 0, 0);
    ukladLewej->addWidget(droga());
    ukladLewej->addStretch();

    obok_ = new QWidget;
    auto* ukladObok = new QVBoxLayout(obok_);
    ukladObok->setContentsMargins(0, 0, 0, 0);
    ukladObok->addStretch();
    auto* prawa = new QVBoxLayout;
    prawa->addWidget(kolumna(ekranListy::placaPrawa()));
    prawa->addWidget(przewijana(obok_), 1);
    auto* strona = new QWidget;
    auto* uklad = new QHBoxLayout(strona);
    uklad->addWidget(przewijana(lewa, new PrzewijanaWPionie));
    uklad->addLayout(prawa, 1);
    return strona;
}

QWidget* ZakladkiListy::stronaSkladnikow(ListaSkladnikow& lista, const QString& nazwa,
                                         const QList<Pole>& pola) {
    for (const Pole& p : pola) kolumny_.insert(p.nazwa, p.kolumna);
    lista.tresc = new QWidget;
    auto* uklad = new QVBoxLayout(lista.tresc);
    uklad->setContentsMargins(0, 0, 0, 0);
    lista.legenda = new QLabel(
        QStringLiteral("Litery przy składniku: B – brutto, Z – podstawa ZUS, U – ubezpieczenie zdrowotne."));
    lista.legenda->setProperty("podpowiedz", true);
    lista.bezZerowych = new QCheckBox(QStringLiteral("Ukryj &składniki równe zero"));
    lista.bezZerowych->setObjectName(nazwa);
    // From the list the Tab key leads straight to the fields; the letter reaches it from everywhere.
    lista.bezZerowych->setFocusPolicy(Qt::ClickFocus);
    connect(lista.bezZerowych, &QCheckBox::clicked, this, [this](bool ukryj) {
        pamiecOkien::ustaw(kKluczZerowych, ukryj ? QStringLiteral("T") : QString());
        ukryjZerowe(ukryj);
    });
    uklad->addWidget(lista.bezZerowych, 0, Qt::AlignLeft);
    uklad->addWidget(wiazanie_.siatka(pola));
    uklad->addWidget(lista.legenda);
    lista.zakladka = new QWidget;
    auto* zakladka = new QVBoxLayout(lista.zakladka);
    zakladka->addWidget(lista.tresc);
    zakladka->addStretch();
    return przewijana(lista.zakladka);
}

void ZakladkiListy::rozmiesc() {
    const int najmniej = kZnakowObok * fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const bool obok = currentIndex() == Placa && width() >= najmniej;
    if (obok == saObok_) return;
    saObok_ = obok;
    QWidget* wPracy = window()->focusWidget();
    for (const ListaSkladnikow* lista : {&dodatnie_, &ujemne_}) {
        auto* uklad = static_cast<QVBoxLayout*>((obok ? obok_ : lista->zakladka)->layout());
        uklad->insertWidget(uklad->count() - 1, lista->tresc); // above the stretch
    }
    // What stands above does for both.
    for (QWidget* drugi : {static_cast<QWidget*>(ujemne_.bezZerowych), ujemne_.legenda})
        drugi->setVisible(!obok);
    if (wPracy && isAncestorOf(wPracy)) wPracy->setFocus(Qt::OtherFocusReason);
}

void ZakladkiListy::resizeEvent(QResizeEvent* zdarzenie) {
    QTabWidget::resizeEvent(zdarzenie);
    rozmiesc();
}

void ZakladkiListy::ukryjZerowe(bool ukryj) {
    ukryjZerowe_ = ukryj;
    for (const ListaSkladnikow* lista : {&dodatnie_, &ujemne_}) lista->bezZerowych->setChecked(ukryj);
    pokazSkladniki();
}

bool ZakladkiListy::widoczny(const QString& pole, const PozycjaSkladnika& pozycja, Waluta kwota) const {
    if (!pozycja.aktywna()) return false;
    // What a field has to say of its text must be there to be read.
    const QWidget& kontrolka = *wiazanie_.kontrolka(pole);
    return !ukryjZerowe_ || !kwota.zero() || kontrolka.hasFocus() || !UwagaPola::zdanie(kontrolka).isEmpty();
}

void ZakladkiListy::pokazSkladniki() {
    const Recordset& pls = o_.sesja.rsPLS;
    const bool jest = lista_.wiersz() && pls.naWierszu();
    const auto kwota = [&](Kolumna k) { return jest ? pls.kwota(k) : Waluta{}; };
    QHash<QString, bool> widoczne;
    for (int i = 1; i <= kDodatnich; ++i) {
        const PozycjaSkladnika& p = lista_.pozycje().dodatnia(i);
        const Waluta ile = kwota(schemat::SP(i));
        const QString pole = ekranListy::nazwaPola(u"txtPlus", i);
        widoczne.insert(pole, widoczny(pole, p, ile));
        widoczne.insert(ekranListy::nazwaPola(ekranListy::kDrogaPlus, i), p.aktywna() && !ile.zero());
    }
    for (int j = 1; j <= kUjemnych; ++j) {
        const PozycjaSkladnika& p = lista_.pozycje().ujemna(j);
        const Waluta ile = kwota(schemat::SM(j));
        const QString pole = ekranListy::nazwaPola(u"txtMinus", j);
        widoczne.insert(pole, widoczny(pole, p, ile));
        widoczne.insert(ekranListy::nazwaPola(ekranListy::kDrogaMinus, j), p.aktywna() && !ile.zero());
    }
    const Recordset& pla = o_.sesja.rsPLA;
    for (const auto& [pole, kolumna] :
         {std::pair(u"txtDodatki", schemat::PLA("DODATKI")), {u"txtPotracenia", schemat::PLA("POTRACENIA")}})
        widoczne.insert(QString::fromUtf16(pole), jest && pla.naWierszu() && !pla.kwota(kolumna).zero());
    const auto pozostale = zrodlo_.czytajSume(SumaEkranu::Pozostale);
    widoczne.insert(ekranListy::kPozostale.toString(), pozostale && !pozostale->zero());
    if (widoczne == widoczne_) return;
    widoczne_ = widoczne;
    wiazanie_.pokaz(widoczne);
}

void ZakladkiListy::wykoncz() {
    for (const QStringView nazwa : kGlowne) wyroznijSume(*this, *wiazanie_.kontrolka(nazwa.toString()));
    for (const QStringView nazwa : kPolaSum)
        qobject_cast<QLineEdit*>(wiazanie_.kontrolka(nazwa.toString()))->setAlignment(Qt::AlignRight);
    for (const QStringView nazwa : kPodstawySkladek)
        qobject_cast<QLineEdit*>(wiazanie_.kontrolka(nazwa.toString()))
            ->setPlaceholderText(QStringLiteral("po przeliczeniu"));
    for (int i = 1; i <= kDodatnich; ++i)
        for (const auto& [tablica, opis] :
             {std::pair(u"txtDataPocz", u"od"), std::pair(u"txtDataKonc", u"do")})
            qobject_cast<QLineEdit*>(wiazanie_.kontrolka(ekranListy::nazwaPola(tablica, i)))
                ->setPlaceholderText(QString::fromUtf16(opis));
    wiazanie_.sprawdzaj(kWyslane, [](const QString& tekst, const QString&) {
        return tekst.compare(QLatin1String("T"), Qt::CaseInsensitive) == 0 ? QStringLiteral("T")
                                                                           : QStringLiteral("N");
    });
}

void ZakladkiListy::opiszSkladnik(const QString& nazwa, const QString& ostatnie, const QString& podpis,
                                  const QString& flagi) {
    wiazanie_.ustawPodpis(nazwa, podpisSkladnika(podpis));
    wiazanie_.ustawDopisek(ostatnie, flagi);
}

void ZakladkiListy::NazwySkladnikow() {
    // A blocked month keeps the names it was blocked with.
    const auto nazwa = [this](int nr) {
        if (lista_.zablokowany()) return o_.sesja.rsPLACEN.tekst(schemat::NazwaSkladnikaMiesiaca(nr));
        return nr <= kDodatnich ? o_.skladniki.SkNazwa(nr) : o_.skladniki.SkUNazwa(nr - kDodatnich);
    };
    for (int i = 1; i <= kDodatnich; ++i) {
        opiszSkladnik(ekranListy::nazwaPola(u"txtPlus", i), ekranListy::nazwaPola(u"txtDataKonc", i),
                      nazwa(i), lista_.pozycje().dodatnia(i).flagi());
        wiazanie_.ustawPodpis(ekranListy::nazwaPola(ekranListy::kDrogaPlus, i), podpisSkladnika(nazwa(i)));
    }
    for (int j = 1; j <= kUjemnych; ++j) {
        const QString pole = ekranListy::nazwaPola(u"txtMinus", j);
        const PozycjaSkladnika& p = lista_.pozycje().ujemna(j);
        opiszSkladnik(pole, pole, nazwa(kDodatnich + j), p.flagi());
        // Among the additions that make up the gross it is one taken off.
        wiazanie_.ustawPodpis(ekranListy::nazwaPola(ekranListy::kDrogaMinus, j),
                              (p.brutto ? QStringLiteral("minus ") : QString()) +
                                  podpisSkladnika(nazwa(kDodatnich + j)));
    }
}

void ZakladkiListy::opiszStawki() {
    for (const PoleEkranu* p : zeStawka_) {
        Pole stawka;
        stawka.kolumna = p->stawka;
        wiazanie_.ustawPodpis(p->nazwa.toString(),
                              p->podpis.toString().arg(tekstStawki(zrodlo_.czytaj(stawka))));
    }
}

void ZakladkiListy::wyroznij(Zakladka zakladka, bool tak) {
    setTabIcon(zakladka, tak ? Wyglad::znakUwagi() : QIcon());
}

void ZakladkiListy::Wypisz_daneP() {
    // What a field said of the clerk's text outlives the calculation of its row.
    if (pokazany_ && pokazany_ == lista_.wiersz())
        wiazanie_.odswiez();
    else
        wiazanie_.wczytaj();
    pokazany_ = lista_.wiersz();
    opiszStawki();
    pokazSkladniki();
}

void ZakladkiListy::Wyczysc_daneP() {
    pokazany_.reset();
    wiazanie_.czysc();
    pokazSkladniki();
}

bool ZakladkiListy::cofnijWpisywane() {
    if (!wiazanie_.jestZmiana()) return false;
    wiazanie_.wczytaj();
    return true;
}

void ZakladkiListy::zapisz(const QString& nazwa) {
    const Kolumna kolumna = kolumny_.value(nazwa);
    const auto kwoty = polaListy();
    const auto kwota = std::ranges::find_if(kwoty, [&](const PoleListy& p) { return p.nazwa == nazwa; });
    if (kwota != kwoty.end()) {
        zmienKwote(*kwota);
    } else if (kolumna.tabela == &schemat::PLS) {
        wiazanie_.zbierz();
        lista_.WpiszSK();
        zrodlo_.porzucSumy();
        emit skladnikiZmienione();
    } else if (kolumna.tabela == &schemat::PLD) {
        wiazanie_.zbierz();
        lista_.WpiszDatyGr();
    } else {
        wpiszDni(nazwa);
    }
    Wypisz_daneP();
    emit kwotyZmienione();
}

void ZakladkiListy::zmienKwote(const PoleListy& pole) {
    const Wartosc wartosc = wiazanie_.wartosc(pole.nazwa.toString());
    // Refused, the old amount stands and is shown again.
    if (!lista_.ZmienKwote(pole, std::get<Waluta>(wartosc))) return;
    const bool lancuch = pole.lancuch != Lancuch::Zaden && pole.lancuch != Lancuch::Przelew &&
                         pole.lancuch != Lancuch::ZmianaPodatku;
    if (lancuch) zrodlo_.przyjmijSumy();
}

void ZakladkiListy::wpiszDni(const QString& nazwa) {
    wiazanie_.zbierz();
    lista_.WpiszDni();
    if (nazwa == kInneWolne && !lista_.DniZgodneZMiesiacem())
        o_.rozmowa.komunikat(
            QStringLiteral("Uwaga! Ilość dni zapisanych nie jest zgodna z faktyczną ilością dni w miesiącu."),
            Styl::Wykrzyknik);
}

} // namespace tornel::payroll
