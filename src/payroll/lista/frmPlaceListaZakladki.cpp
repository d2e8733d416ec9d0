#include "payroll/lista/frmPlaceListaZakladki.h"
#include "common/Rozmowa.h"
#include "okna/Wyglad.h"
#include "payroll/lista/PolaListy.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabBar>
#include <QVBoxLayout>

namespace tornel::payroll {

using schemat::PLB;

namespace {

const QString kWyslane = QStringLiteral("txtWyslaneMCS");
const QString kInneWolne = QStringLiteral("txtInnewolne");
/// The amounts that the eye looks for first.
constexpr QStringView kGlowne[] = {u"txtBrutto", u"txtNetto", u"txtPodatek19", u"txtDoWyplaty"};

QString bezMnemonika(QString tekst) { return tekst.replace(QLatin1Char('&'), QLatin1String("&&")); }

/// The form "99.99%": money with its two places, a whole number as it is.
QString tekstStawki(const Wartosc& stawka) {
    if (const auto* liczba = std::get_if<qint64>(&stawka)) return QString::number(*liczba) + QLatin1Char('%');
    const auto* procent = std::get_if<Waluta>(&stawka);
    return FormatKwoty(procent ? *procent : Waluta{}) + QLatin1Char('%');
}

} // namespace

ZrodloWiersza::ZrodloWiersza(Sesja& sesja, const ListaPlac& lista)
    : lista_(lista), wiersze_{&sesja.rsPLA, &sesja.rsPLB, &sesja.rsPLS, &sesja.rsPLD} {}

Wartosc ZrodloWiersza::czytaj(const Pole& pole) const {
    const auto suma = static_cast<SumaEkranu>(pole.klucz);
    if (suma != SumaEkranu::Brak) {
        if (!sumyWiersza_ || sumyWiersza_ != lista_.wiersz()) return Null;
        const SumyWiersza& sumy = lista_.sumy();
        return FormatKwoty(suma == SumaEkranu::PodstawaZUS ? sumy.PodstawaZUS : sumy.PodstawaUbzdr);
    }
    Wartosc wartosc = wiersze_.czytaj(pole);
    const auto* tekst = std::get_if<QString>(&wartosc);
    // Not yet sent shows as "N", whether or not the row says so.
    if (pole.nazwa == kWyslane && (!tekst || tekst->trimmed().isEmpty())) return QStringLiteral("N");
    return wartosc;
}

ZakladkiListy::ZakladkiListy(Otoczenie& otoczenie, ListaPlac& lista, QWidget* rodzic)
    : QTabWidget(rodzic), o_(otoczenie), lista_(lista), zrodlo_(otoczenie.sesja, lista), wiazanie_(zrodlo_) {
    setObjectName(QStringLiteral("tabPlace"));
    using namespace ekranListy;
    addTab(strona({placaLewa(), placaPrawa()}), QStringLiteral("PŁACA"));
    addTab(stronaSkladnikow(polaDodatnie()), QStringLiteral("SKŁADNIKI DODATNIE"));
    addTab(stronaSkladnikow(polaUjemne()), QStringLiteral("SKŁADNIKI UJEMNE"));
    addTab(strona({dniMiesiaca(), dniUrlopow(), swiadczenia()}), QStringLiteral("CZAS PRACY"));
    addTab(strona({inneLewa(), innePrawa()}), QStringLiteral("UBEZPIECZENIA I INNE"));
    for (int i = 0; i < count(); ++i) setTabToolTip(i, QStringLiteral("Alt+%1").arg(i + 1));
    setIconSize(QSize(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka));
    tabBar()->setFocusPolicy(Qt::ClickFocus); // from the list the Tab key leads straight to the fields
    wykoncz();
    NazwySkladnikow();
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &ZakladkiListy::zapisz);
}

QGroupBox* ZakladkiListy::grupa(const GrupaEkranu& grupa) {
    QList<Pole> pola;
    for (const PoleEkranu& p : grupa.pola) {
        pola.append(ekranListy::pole(p));
        kolumny_.insert(pola.last().nazwa, pola.last().kolumna);
        if (p.stawka.tabela) zeStawka_.append(&p);
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

QWidget* ZakladkiListy::stronaSkladnikow(const QList<Pole>& pola) {
    for (const Pole& p : pola) kolumny_.insert(p.nazwa, p.kolumna);
    auto* strona = new QWidget;
    auto* uklad = new QVBoxLayout(strona);
    auto* legenda = new QLabel(
        QStringLiteral("Litery przy składniku: B – brutto, Z – podstawa ZUS, U – ubezpieczenie zdrowotne."));
    legenda->setProperty("podpowiedz", true);
    uklad->addWidget(wiazanie_.siatka(pola));
    uklad->addWidget(legenda);
    uklad->addStretch();
    auto* przewijanie = new QScrollArea;
    przewijanie->setWidget(strona);
    przewijanie->setWidgetResizable(true);
    // The ground of the tab shows through, as on the tabs that need no scrolling.
    strona->setAutoFillBackground(false);
    przewijanie->viewport()->setAutoFillBackground(false);
    przewijanie->setFocusPolicy(Qt::NoFocus);
    przewijanie->setFrameShape(QFrame::NoFrame);
    return przewijanie;
}

void ZakladkiListy::wykoncz() {
    for (const QStringView nazwa : kGlowne) Wyglad::oznaczGlowne(*wiazanie_.kontrolka(nazwa.toString()));
    for (const QString& nazwa : {QStringLiteral("txtPodstawaZUS"), QStringLiteral("txtPodstawaUbzdr")}) {
        auto* linia = qobject_cast<QLineEdit*>(wiazanie_.kontrolka(nazwa));
        linia->setAlignment(Qt::AlignRight);
        linia->setPlaceholderText(QStringLiteral("po przeliczeniu"));
    }
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
    // A nameless component still needs a caption of its own.
    wiazanie_.ustawPodpis(nazwa,
                          bezMnemonika(podpis.isEmpty() ? QStringLiteral("?") : podpis) + QLatin1Char(':'));
    wiazanie_.ustawDopisek(ostatnie, flagi);
}

void ZakladkiListy::NazwySkladnikow() {
    // A blocked month keeps the names it was blocked with.
    const auto nazwa = [this](int nr) {
        if (lista_.zablokowany()) return o_.sesja.rsPLACEN.tekst(schemat::NazwaSkladnikaMiesiaca(nr));
        return nr <= kDodatnich ? o_.skladniki.SkNazwa(nr) : o_.skladniki.SkUNazwa(nr - kDodatnich);
    };
    QHash<QString, bool> widoczne;
    for (int i = 1; i <= kDodatnich; ++i) {
        const QString pole = ekranListy::nazwaPola(u"txtPlus", i);
        opiszSkladnik(pole, ekranListy::nazwaPola(u"txtDataKonc", i), nazwa(i),
                      lista_.pozycje().dodatnia(i).flagi());
        widoczne.insert(pole, lista_.pozycje().dodatnia(i).aktywna());
    }
    for (int j = 1; j <= kUjemnych; ++j) {
        const QString pole = ekranListy::nazwaPola(u"txtMinus", j);
        opiszSkladnik(pole, pole, nazwa(kDodatnich + j), lista_.pozycje().ujemna(j).flagi());
        widoczne.insert(pole, lista_.pozycje().ujemna(j).aktywna());
    }
    wiazanie_.pokaz(widoczne);
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
}

void ZakladkiListy::Wyczysc_daneP() {
    pokazany_.reset();
    wiazanie_.czysc();
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
