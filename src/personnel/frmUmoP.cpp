#include "personnel/frmUmoP.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/Klepsydra.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/frmUmoPPola.h"
#include "personnel/frmWybPr.h"
#include "personnel/Wypowiedzenie.h"
#include "store/Sesja.h"
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <utility>

namespace tornel::personnel {

namespace {

QComboBox* filtrPoNazwie(const QWidget& okno, const char16_t* nazwa) {
    return okno.findChild<QComboBox*>(QString::fromUtf16(nazwa));
}

QDate dataZPola(const Wiazanie& pola, const char16_t* pole) {
    const Wartosc wartosc = pola.wartosc(QString::fromUtf16(pole));
    return std::holds_alternative<QDate>(wartosc) ? std::get<QDate>(wartosc) : QDate();
}

} // namespace

frmUmoP::frmUmoP(Otoczenie& otoczenie, QWidget* rodzic, DrukUmowyOPrace druk)
    : frmUmoP(otoczenie, std::make_shared<UmowyOPrace>(otoczenie), OpisUmoP(otoczenie), rodzic,
              std::move(druk)) {}

frmUmoP::frmUmoP(Otoczenie& otoczenie, std::shared_ptr<UmowyOPrace> umowy, const OpisListyPol& opis,
                 QWidget* rodzic, DrukUmowyOPrace druk)
    : frmListaPol(otoczenie.rozmowa,
                  std::make_unique<ZrodloWierszy>(std::initializer_list<Recordset*>{&umowy->tabela()}), opis,
                  rodzic),
      o_(otoczenie), umowy_(std::move(umowy)), druk_(std::move(druk)),
      cboOsoba_(filtrPoNazwie(*this, u"cboOsoba")), cboRodzaj_(filtrPoNazwie(*this, u"cboRodzaj")),
      cboKoncza_(filtrPoNazwie(*this, u"cboKoncza")), cmdZmiana_(opis.przyciski[0]),
      cmdKartoteka_(opis.przyciski[1]), cmdDrukuj_(opis.przyciski[2]), labOsoba_(new QLabel),
      labIle_(new QLabel), labUwagi_(Wyglad::baner(QString(), this)), labOkres_(new QLabel) {
    const Klepsydra klepsydra;
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    labOsoba_->setObjectName(QStringLiteral("labOsoba"));
    labOsoba_->setTextFormat(Qt::PlainText);
    QFont pismo = labOsoba_->font();
    pismo.setBold(true);
    labOsoba_->setFont(pismo);
    labUwagi_->setObjectName(QStringLiteral("labUwagi"));
    labUwagi_->setWordWrap(true);
    dodajNadPolami(labUwagi_);
    dodajNadPolami(labOsoba_);
    labOkres_->setObjectName(QStringLiteral("labOkres"));
    labOkres_->setProperty("podpowiedz", true);
    wiazanie().dolacz(QStringLiteral("dtpdata_wyp"), labOkres_);
    budujFiltr();
    budujDruk();
    cmdZmiana_->setToolTip(QStringLiteral("Zmiana warunków zaznaczonej umowy od podanego dnia"));
    cmdKartoteka_->setToolTip(QStringLiteral("Wpisuje warunki zaznaczonej umowy do kartoteki pracownika"));
    connect(cmdZmiana_, &QPushButton::clicked, this, &frmUmoP::zmienWarunki);
    connect(cmdKartoteka_, &QPushButton::clicked, this, &frmUmoP::doKartoteki);
    connect(&wiazanie(), &Wiazanie::opuszczone, this, &frmUmoP::uzupelnijKoniec);
    resize(158 * Wyglad::kSiatka, 92 * Wyglad::kSiatka);
    Wczytaj();
}

// --- building
// ----------------------------------------------------------------------------------------------------

void frmUmoP::budujFiltr() {
    labIle_->setObjectName(QStringLiteral("labIle"));
    dodajPodLista(labIle_);
    cboRodzaj_->addItem(QStringLiteral("Wszystkie rodzaje"));
    for (const QStringView nazwa : RodzajeUmowOPrace()) cboRodzaj_->addItem(nazwa.toString());
    for (const OkresKonczacych& okres : OkresyKonczacych())
        cboKoncza_->addItem(okres.napis.toString(), okres.miesiecy);
    for (QComboBox* wybor : {cboOsoba_, cboRodzaj_, cboKoncza_})
        connect(wybor, &QComboBox::activated, this, &frmUmoP::filtruj);
}

void frmUmoP::budujDruk() {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuDrukuj"));
    for (const PozycjaDrukuUmoP& p : MenuDrukuUmoP())
        connect(menu->addAction(p.napis.toString()), &QAction::triggered, this,
                [this, pismo = p.pismo] { drukuj(pismo); });
    cmdDrukuj_->setMenu(menu);
}

// --- list
// --------------------------------------------------------------------------------------------------------

void frmUmoP::wypelnijOsoby(const QList<UmowaOPrace>& umowy) {
    const QSignalBlocker cicho(cboOsoba_);
    cboOsoba_->clear();
    cboOsoba_->addItem(QStringLiteral("Wszystkie osoby"));
    for (const UmowaOPrace& u : umowy) // by surname, so those of one person follow one another
        if (cboOsoba_->itemData(cboOsoba_->count() - 1) != u.prcId) cboOsoba_->addItem(u.osoba(), u.prcId);
    const int miejsce = filtr_.prcId ? cboOsoba_->findData(*filtr_.prcId) : 0;
    if (miejsce <= 0) filtr_.prcId.reset();
    cboOsoba_->setCurrentIndex(std::max(miejsce, 0));
}

QList<qint64> frmUmoP::numery() {
    const QList<UmowaOPrace> wszystkie = umowy_->Wczytaj();
    wypelnijOsoby(wszystkie);
    linie_.clear();
    QList<qint64> wynik;
    for (const UmowaOPrace& u : wszystkie) {
        if (!filtr_.pasuje(u)) continue;
        wynik.append(u.id);
        linie_.insert(u.id, u);
    }
    labIle_->setText(QStringLiteral("Na liście: %1 z %2").arg(wynik.size()).arg(wszystkie.size()));
    if (!wszystkie.isEmpty())
        lista().ustawPodpowiedz(QStringLiteral("Nic nie pasuje do osoby, rodzaju i terminu nad listą."));
    return wynik;
}

QStringList frmUmoP::tekstyWiersza(qint64 id) {
    const UmowaOPrace& u = linie_[id];
    const WarunkiPracy& w = u.warunki;
    return {u.numer,
            u.osoba(),
            RodzajNaLiscie(u),
            FormatDaty(w.od),
            FormatDaty(u.koniec()),
            w.stanowisko,
            w.dzial,
            umowy_->nazwaMiejsca(w.miejsce),
            w.etat > 0 && w.etat2 > 0 ? QStringLiteral("%1/%2").arg(w.etat).arg(w.etat2) : QString(),
            FormatKwoty(w.placa)};
}

void frmUmoP::filtruj() {
    if (Wpisz()) {
        const QVariant osoba = cboOsoba_->currentData();
        filtr_.prcId = osoba.isValid() ? std::optional(osoba.toLongLong()) : std::nullopt;
        filtr_.rodzaj = cboRodzaj_->currentIndex() > 0 ? std::optional(qint64{cboRodzaj_->currentIndex() - 1})
                                                       : std::nullopt;
        const int miesiecy = cboKoncza_->currentData().toInt();
        const QDate dzis = QDate::currentDate();
        filtr_.konczaceOd = miesiecy > 0 ? dzis : QDate();
        filtr_.konczaceDo = miesiecy > 0 ? dzis.addMonths(miesiecy) : QDate();
        Wczytaj(biezacy());
        return;
    }
    // What could not be stored stays, and so does the filter.
    const int osoba = filtr_.prcId ? cboOsoba_->findData(*filtr_.prcId) : 0;
    cboOsoba_->setCurrentIndex(osoba);
    cboRodzaj_->setCurrentIndex(filtr_.rodzaj ? static_cast<int>(*filtr_.rodzaj) + 1 : 0);
    if (!filtr_.konczaceDo.isValid()) cboKoncza_->setCurrentIndex(0);
}

void frmUmoP::odslon(qint64 id) {
    const auto umowa = umowy_->umowa(id);
    if (!umowa || filtr_.pasuje(*umowa)) return;
    filtr_ = {};
    cboRodzaj_->setCurrentIndex(0);
    cboKoncza_->setCurrentIndex(0);
}

// --- row
// ---------------------------------------------------------------------------------------------------------

bool frmUmoP::zapisz(qint64 id) {
    if (const QString powod = umowy_->odmowa(); !powod.isEmpty()) {
        o_.rozmowa.komunikat(powod, Styl::Wykrzyknik);
        return false;
    }
    umowy_->Wpisz();
    const auto zapisana = umowy_->umowa(id);
    if (!zapisana) return true;
    const UmowaOPrace przedtem = linie_.value(id);
    linie_[id] = *zapisana;
    linie_[id].zastapiona = przedtem.zastapiona;
    if (zapisana->zmienia > 0) linie_[id].rozwiazana = przedtem.rozwiazana; // that of its contract
    // New terms are asked about at once: a payroll takes them from the personnel file.
    const bool zmienione = !(zapisana->warunki == przedtem.warunki) ||
                           (zapisana->zmienia == 0 && zapisana->rozwiazana != przedtem.rozwiazana);
    const auto ostatnia = umowy_->ostatnia(zapisana->prcId);
    if (zmienione && ostatnia && ostatnia->id == id) (void)umowy_->PrzepiszDoKartoteki(id);
    return true;
}

std::optional<qint64> frmUmoP::utworz() {
    const QList<qint64> wybrani = frmWybPr::wybierz(o_, kTrybPracujacy, frmWybPr::Ilu::Jeden, this,
                                                    biezacy() >= 0 ? linie_.value(biezacy()).prcId : -1);
    if (wybrani.isEmpty()) return std::nullopt;
    const qint64 prcId = wybrani.first();
    const qint64 id = umowy_->Nowa(prcId, umowy_->proponowanyDzien(prcId, QDate::currentDate()));
    odslon(id);
    return id;
}

void frmUmoP::zmienWarunki() {
    if (biezacy() < 0 || !Wpisz()) return;
    QString proponowany = FormatDaty(RokMies::dnia(QDate::currentDate()).plus(1).pierwszyDzien());
    for (;;) {
        const auto wpisany =
            o_.rozmowa.wprowadz(QStringLiteral("Od którego dnia zmieniają się warunki umowy ?"),
                                QStringLiteral("Zmiana warunków"), proponowany);
        if (!wpisany) return;
        const auto dzien = CzytajWpisanaDate(*wpisany);
        const QDate od = umowy_->glowna(linie_.value(biezacy())).warunki.od;
        if (dzien && *dzien > od) {
            const qint64 id = umowy_->Zmiana(biezacy(), *dzien);
            odslon(id);
            Wczytaj(id);
            return;
        }
        o_.rozmowa.komunikat(
            dzien ? QStringLiteral("Umowa trwa od %1. Zmiana może być tylko późniejsza.").arg(FormatDaty(od))
                  : QStringLiteral("„%1” nie jest datą.").arg(*wpisany),
            Styl::Wykrzyknik);
        proponowany = *wpisany;
    }
}

void frmUmoP::doKartoteki() {
    if (biezacy() < 0 || !Wpisz()) return;
    (void)umowy_->PrzepiszDoKartoteki(biezacy());
    pokazano(biezacy());
}

void frmUmoP::drukuj(PismoOPrace pismo) {
    if (biezacy() < 0 || !Wpisz()) return;
    const auto umowa = umowy_->umowa(biezacy());
    if (!umowa) return;
    if (const QString powod = umowy_->odmowaPisma(*umowa, pismo); !powod.isEmpty())
        return o_.rozmowa.komunikat(powod, Styl::Wykrzyknik);
    druk_(pismo, umowa->id, this);
}

void frmUmoP::pokazano(qint64 id) {
    const auto umowa = id >= 0 ? umowy_->umowa(id) : std::nullopt;
    cmdZmiana_->setEnabled(umowa.has_value());
    cmdDrukuj_->setEnabled(umowa.has_value() && druk_);
    opiszWiersz(umowa.value_or(UmowaOPrace{}));
    pokazOkres();
}

void frmUmoP::opiszWiersz(const UmowaOPrace& umowa) {
    const bool jest = umowa.id > 0;
    const UmowaOPrace kontrakt = jest ? umowy_->glowna(umowa) : umowa;
    QString kto =
        jest ? QStringLiteral("%1 %2  (nr %3)").arg(umowa.imie, umowa.nazwisko).arg(umowa.prcId) : QString();
    if (umowa.zmienia > 0)
        kto += QStringLiteral("  zmiana umowy %1 z %2").arg(kontrakt.numer, FormatDaty(kontrakt.zawarta));
    labOsoba_->setText(kto.simplified());
    QStringList zdania = jest ? umowy_->uwagi(umowa) : QStringList();
    const QStringList kartoteka = jest ? zdaniaOKartotece(umowa) : QStringList();
    cmdKartoteka_->setEnabled(!kartoteka.isEmpty());
    Wyglad::ustawBaner(*labUwagi_, (zdania + kartoteka).join(QLatin1Char(' ')));
    // Kind and end are the contract's own.
    for (const char16_t* pole : {u"cborodzaj", u"chkwyp_2tyg", u"cbosposob", u"dtpdata_roz"})
        wiazanie().kontrolka(QString::fromUtf16(pole))->setEnabled(jest && umowa.zmienia == 0);
}

QStringList frmUmoP::zdaniaOKartotece(const UmowaOPrace& umowa) const {
    const auto ostatnia = umowy_->ostatnia(umowa.prcId);
    if (!ostatnia || ostatnia->id != umowa.id) return {};
    QStringList rozne;
    for (const RoznicaWarunku& r : umowy_->roznicaOdKartoteki(umowa))
        rozne += QStringLiteral("%1 %2").arg(r.nazwa, r.dotad);
    return rozne.isEmpty() ? QStringList()
                           : QStringList{QStringLiteral("Kartoteka pracownika mówi inaczej: %1.")
                                             .arg(rozne.join(QStringLiteral(", ")))};
}

// --- notice
// ------------------------------------------------------------------------------------------------------

UmowaOPrace frmUmoP::zPol() const {
    UmowaOPrace u = umowy_->umowa(biezacy()).value_or(UmowaOPrace{});
    const Wiazanie& pola = wiazanie();
    const auto liczba = [&](const char16_t* pole) {
        const Wartosc w = pola.wartosc(QString::fromUtf16(pole));
        return std::holds_alternative<qint64>(w) ? std::get<qint64>(w) : qint64{0};
    };
    u.rodzaj = liczba(u"cborodzaj");
    u.wypowiadalna = pola.tekst(QStringLiteral("chkwyp_2tyg")) == QLatin1String("T");
    u.warunki.od = dataZPola(pola, u"dtpdata_od");
    u.warunki.dokad = dataZPola(pola, u"dtpdata_do");
    u.sposob = static_cast<SposobRozwiazania>(liczba(u"cbosposob"));
    u.wypowiedziana = dataZPola(pola, u"dtpdata_wyp");
    return u;
}

void frmUmoP::pokazOkres() {
    QString napis;
    if (biezacy() >= 0) {
        const UmowaOPrace u = zPol();
        const UmowaOPrace kontrakt = u.zmienia > 0 ? umowy_->glowna(u) : u;
        if (u.wypowiedziana.isValid())
            if (const auto okres = OkresDlaUmowy(kontrakt, umowy_->zatrudnionyOd(kontrakt), u.wypowiedziana))
                napis = QStringLiteral("%1, do %2")
                            .arg(okres->napis(), FormatDaty(okres->koniec(u.wypowiedziana)));
    }
    labOkres_->setText(napis);
}

void frmUmoP::uzupelnijKoniec(const QString& pole) {
    pokazOkres();
    if (biezacy() < 0 || (pole != QLatin1String("dtpdata_wyp") && pole != QLatin1String("cbosposob"))) return;
    const UmowaOPrace u = zPol();
    const bool wypowiedzenie = u.sposob == SposobRozwiazania::WypowiedzenieFirmy ||
                               u.sposob == SposobRozwiazania::WypowiedzeniePracownika;
    if (!wypowiedzenie || !u.wypowiedziana.isValid() || dataZPola(wiazanie(), u"dtpdata_roz").isValid() ||
        u.zmienia > 0)
        return;
    if (const auto okres = OkresDlaUmowy(u, umowy_->zatrudnionyOd(u), u.wypowiedziana))
        wiazanie().ustawTekst(QStringLiteral("dtpdata_roz"), FormatDaty(okres->koniec(u.wypowiedziana)));
}

} // namespace tornel::personnel
