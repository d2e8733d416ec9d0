#include "contracts/frmUmowy.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "contracts/frmUZLData.h"
#include "contracts/PrzypomnieniePodatku.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/frmWybPr.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <utility>

namespace tornel::contracts {

namespace {

constexpr int kSzerokoscListyUmow = 70 * Wyglad::kSiatka;
constexpr int kSzerokoscPodpisow = 20 * Wyglad::kSiatka;

/// The contract taken up: its amounts as the calculation has them, the rest as its row has it.
class ZrodloUmowy final : public ZrodloPol {
public:
    ZrodloUmowy(std::shared_ptr<Umowy> umowy, const RodzajUmowy& rodzaj)
        : umowy_(std::move(umowy)), rodzaj_(rodzaj), wiersz_{&umowy_->tabela()} {}

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override {
        RachunekUmowy rachunek = umowy_->rachunek();
        const Waluta* kwota = PozycjaRachunku(rachunek, pole.kolumna.def().nazwa);
        return kwota ? Wartosc(*kwota) : wiersz_.czytaj(pole);
    }
    void zapisz(const Pole& pole, const Wartosc& wartosc) override {
        const std::string_view nazwa = pole.kolumna.def().nazwa;
        const PoleUmowy& p = *ZnajdzPoleUmowy(
            rodzaj_, QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size())));
        if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return umowy_->ustawKwote(p, *kwota);
        wiersz_.zapisz(pole, wartosc);
        // The entry with nothing in it; any other gives the name when the contract is stored.
        if (p.rodzaj == RodzajPolaUmowy::Urzad)
            umowy_->tabela().ustaw(rodzaj_.kolumna("us_nazwa"), QString());
    }

private:
    std::shared_ptr<Umowy> umowy_;
    const RodzajUmowy& rodzaj_;
    ZrodloWierszy wiersz_;
};

/// The offices as the list shows them, and one entry with nothing in it.
QList<Pozycja> AdresyUS(Sesja& sesja) {
    using schemat::US;
    Recordset us(US);
    us.Open(sesja.cnPlace);
    us.Sort({US("US_ID")});
    QList<Pozycja> wynik;
    for (const Wiersz w : us.wiersze()) {
        const qint64 nr = w.liczba(US("US_ID"));
        wynik.append({nr, QString::number(nr) + QStringLiteral(". ") + w.tekst(US("Nazwa"))});
    }
    wynik.append({qint64{0}, QString()});
    return wynik;
}

/// What the list is filtered by.
QWidget* rzadFiltru() {
    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    auto* rok = new QComboBox;
    rok->setObjectName(QStringLiteral("cboRok"));
    rok->setAccessibleName(QStringLiteral("Rok zawarcia"));
    auto* osoba = new QComboBox;
    osoba->setObjectName(QStringLiteral("cboOsoba"));
    osoba->setAccessibleName(QStringLiteral("Osoba"));
    osoba->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* niewyplacone = new QCheckBox(QStringLiteral("Nie&wypłacone"));
    niewyplacone->setObjectName(QStringLiteral("chkNiewyplacone"));
    niewyplacone->setToolTip(QStringLiteral("Tylko umowy bez daty wypłaty"));
    uklad->addWidget(rok);
    uklad->addWidget(osoba, 1);
    uklad->addWidget(niewyplacone);
    return rzad;
}

OpisListyPol opisUmow(Otoczenie& o, const RodzajUmowy& rodzaj) {
    const EkranUmow& ekran = EkranRodzaju(rodzaj);
    OpisListyPol opis;
    opis.nazwa = ekran.nazwa.toString();
    opis.tytul = ekran.tytul.toString();
    opis.kolumny = {{QStringLiteral("DATA"), Qt::AlignLeft, Porzadek::Data},
                    {rodzaj.kolumnaOsoby.toString()},
                    {QStringLiteral("NUMER")},
                    {QStringLiteral("BRUTTO"), Qt::AlignRight},
                    {QStringLiteral("NETTO"), Qt::AlignRight},
                    {QStringLiteral("WYPŁATA"), Qt::AlignLeft, Porzadek::Data}};
    opis.udzialy = {16, 25, 13, 15, 15, 16};
    if (rodzaj.kolumna("wys_mcs").tabela && o.stale.MCSAkt) {
        opis.kolumny.append({QStringLiteral("MCs")});
        opis.udzialy = {16, 23, 12, 13, 13, 16, 7};
    }
    opis.pustaLista = ekran.pusta.toString();
    opis.szerokosc = kSzerokoscListyUmow;
    opis.nadLista = rzadFiltru();
    opis.szukaj = QStringLiteral("Szukaj: numer umowy lub nazwisko");
    opis.kolumnaNumeru = 2;
    opis.grupy = GrupyUmowy(rodzaj, AdresyUS(o.sesja));
    if (ekran.zakladki) opis.zakladki = QStringLiteral("tabUmowy");
    opis.najszerszePodpisy = kSzerokoscPodpisow;
    opis.przyciski = {przycisk(QStringLiteral("cmdKopia"), QStringLiteral("&Kopiuj"), u"kopiuj"),
                      przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj")};
    return opis;
}

} // namespace

frmUmowy::frmUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, QWidget* rodzic, PortyUmow porty)
    : frmUmowy(otoczenie, rodzaj, std::make_shared<Umowy>(otoczenie, rodzaj), opisUmow(otoczenie, rodzaj),
               rodzic, std::move(porty)) {}

frmUmowy::frmUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, std::shared_ptr<Umowy> umowy,
                   const OpisListyPol& opis, QWidget* rodzic, PortyUmow porty)
    : frmListaPol(otoczenie.rozmowa, std::make_unique<ZrodloUmowy>(umowy, rodzaj), opis, rodzic),
      o_(otoczenie), rodzaj_(rodzaj), ekran_(EkranRodzaju(rodzaj)), umowy_(std::move(umowy)),
      porty_(std::move(porty)), cboRok_(findChild<QComboBox*>(QStringLiteral("cboRok"))),
      cboOsoba_(findChild<QComboBox*>(QStringLiteral("cboOsoba"))),
      chkNiewyplacone_(findChild<QCheckBox*>(QStringLiteral("chkNiewyplacone"))),
      cmdKopia_(opis.przyciski[0]), cmdDrukuj_(opis.przyciski[1]), labOsoba_(new QLabel),
      labSumy_(new QLabel), labPrzypomnienie_(Wyglad::baner(QString(), this)) {
    const Klepsydra klepsydra;
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    labOsoba_->setObjectName(QStringLiteral("labOsoba"));
    labOsoba_->setTextFormat(Qt::PlainText);
    QFont pismo = labOsoba_->font();
    pismo.setBold(true);
    labOsoba_->setFont(pismo);
    labPrzypomnienie_->setObjectName(QStringLiteral("labPrzypomnienie"));
    labPrzypomnienie_->setWordWrap(true);
    dodajNadPolami(labPrzypomnienie_);
    dodajNadPolami(labOsoba_);
    budujFiltr();
    budujDruk();
    podlaczPola();
    ustawKolejnosc();
    ShowMCS(o_.stale.MCSAkt);
    cmdKopia_->setToolTip(QStringLiteral("Nowa umowa z danymi i kwotami zaznaczonej"));
    connect(cmdKopia_, &QPushButton::clicked, this, &frmUmowy::kopiuj);
    resize(158 * Wyglad::kSiatka, 92 * Wyglad::kSiatka);
    Wczytaj();
}

// --- building
// ----------------------------------------------------------------------------------------------------

void frmUmowy::budujFiltr() {
    labSumy_->setObjectName(QStringLiteral("labSumy"));
    dodajPodLista(labSumy_);
    connect(cboRok_, &QComboBox::activated, this, &frmUmowy::filtruj);
    connect(cboOsoba_, &QComboBox::activated, this, &frmUmowy::filtruj);
    connect(chkNiewyplacone_, &QCheckBox::clicked, this, &frmUmowy::filtruj);
    // The quick find changes what is shown, and the sums are of what is shown.
    connect(&lista().lista(), &QAbstractItemModel::layoutChanged, this, &frmUmowy::pokazSumy);
    connect(&lista().lista(), &QAbstractItemModel::modelReset, this, &frmUmowy::pokazSumy);
}

bool frmUmowy::dostepny(DrukUmow co) const {
    switch (co) {
    case DrukUmow::Umowa:
        return static_cast<bool>(porty_.wydruki.umowa);
    case DrukUmow::Rachunek:
        return static_cast<bool>(porty_.wydruki.rachunek);
    case DrukUmow::Zestawienie:
        return static_cast<bool>(porty_.wydruki.zestawienie);
    case DrukUmow::MultiCash:
        return o_.stale.MCSAkt;
    default:
        return static_cast<bool>(porty_.przelewy);
    }
}

void frmUmowy::budujDruk() {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuDrukuj"));
    for (const PozycjaDrukuUmow& p : ekran_.druk) {
        if (!dostepny(p.co)) continue;
        if (p.co == DrukUmow::MultiCash) menu->addSeparator();
        connect(menu->addAction(p.napis.toString()), &QAction::triggered, this,
                [this, co = p.co] { drukuj(co); });
    }
    cmdDrukuj_->setMenu(menu);
    cmdDrukuj_->setEnabled(!menu->isEmpty());
}

void frmUmowy::ShowMCS(bool pokaz) {
    QHash<QString, bool> widoczne;
    for (const PoleUmowy& p : PolaUmow())
        if ((p.rodzaj == RodzajPolaUmowy::Paczka || p.rodzaj == RodzajPolaUmowy::Wyslane) &&
            rodzaj_.kolumna(p.kolumna).tabela)
            widoczne.insert(NazwaPolaUmowy(p), pokaz);
    if (!widoczne.isEmpty()) wiazanie().pokaz(widoczne);
}

void frmUmowy::podlaczPola() {
    for (const PoleUmowy& pole : PolaUmow()) {
        if (!rodzaj_.kolumna(pole.kolumna).tabela) continue;
        const bool kwota = pole.rodzaj == RodzajPolaUmowy::Kwota || pole.rodzaj == RodzajPolaUmowy::Przelew;
        if (kwota)
            wiazanie().sprawdzaj(NazwaPolaUmowy(pole),
                                 [this, &pole](const QString& tekst, const QString& bylo) {
                                     return opuszczono(pole, tekst, bylo);
                                 });
        if (pole.rodzaj == RodzajPolaUmowy::Wyslane)
            wiazanie().sprawdzaj(NazwaPolaUmowy(pole), [](const QString& tekst, const QString&) {
                return tekst.trimmed().toUpper() == QLatin1String("T") ? QStringLiteral("T")
                                                                       : QStringLiteral("N");
            });
    }
    connect(&wiazanie(), &Wiazanie::opuszczone, this, &frmUmowy::pokazPrzypomnienie);
}

void frmUmowy::ustawKolejnosc() {
    for (const GrupaPol& grupa : GrupyUmowy(rodzaj_, {})) {
        QList<QWidget*> wskazniki, kwoty;
        for (const Pole& pole : grupa.pola)
            if (pole.rodzaj == Rodzaj::Kwota)
                (pole.podpis.isEmpty() ? kwoty : wskazniki).append(wiazanie().kontrolka(pole.nazwa));
        if (kwoty.isEmpty()) continue;
        const QList<QWidget*> kolejne = wskazniki + kwoty;
        for (qsizetype i = 1; i < kolejne.size(); ++i) setTabOrder(kolejne[i - 1], kolejne[i]);
    }
}

// --- calculation
// -------------------------------------------------------------------------------------------------

RachunekUmowy frmUmowy::zPol() const {
    const Wiazanie& pola = wiazanie();
    RachunekUmowy rachunek;
    for (const PoleUmowy& p : PolaUmow())
        if (rodzaj_.kolumna(p.kolumna).tabela)
            if (Waluta* pozycja = PozycjaRachunku(rachunek, p.kolumna))
                *pozycja = std::get<Waluta>(pola.wartosc(NazwaPolaUmowy(p)));
    return rachunek;
}

Wiazanie::Sprawdzony frmUmowy::opuszczono(const PoleUmowy& pole, const QString& tekst, const QString& bylo) {
    if (biezacy() < 0) return {tekst};
    const RachunekUmowy przedtem = zPol();
    RachunekUmowy rachunek;
    try {
        rachunek = PoOpuszczeniu(przedtem, pole, KwotaAlboZero(tekst));
    } catch (const Przepelnienie&) {
        return {bylo, QStringLiteral("Kwota %1 jest za duża, żeby policzyć umowę. Zostaje %2.")
                          .arg(tekst, bylo.isEmpty() ? QStringLiteral("0,00") : bylo)};
    }
    for (const PoleUmowy& p : PolaUmow()) {
        if (&p == &pole || !rodzaj_.kolumna(p.kolumna).tabela) continue;
        if (const Waluta* pozycja = PozycjaRachunku(rachunek, p.kolumna))
            wiazanie().ustawTekst(NazwaPolaUmowy(p), FormatKwoty(*pozycja));
    }
    const bool wlasny = pole.rodzaj == RodzajPolaUmowy::Przelew;
    if (!wlasny && przedtem.przelewem != rachunek.przelewem)
        zgubionyPrzelew_ = FormatKwoty(przedtem.przelewem);
    else if (wlasny)
        zgubionyPrzelew_.clear();
    pokazPrzypomnienie();
    const QString wynik = FormatKwoty(*PozycjaRachunku(rachunek, pole.kolumna));
    if (wlasny && wynik != tekst)
        return {wynik,
                QStringLiteral("Przelew %1 jest większy od należności netto %2. W polu jest teraz 0,00.")
                    .arg(tekst, FormatKwoty(rachunek.Netto))};
    return {wynik};
}

// --- list and row
// ------------------------------------------------------------------------------------------------

QList<qint64> frmUmowy::numery() {
    const QList<LiniaUmowy> wszystkie = umowy_->Wczytaj();
    wypelnijFiltr(wszystkie);
    QList<qint64> wynik;
    wynik.reserve(wszystkie.size());
    linie_.clear();
    linie_.reserve(wszystkie.size());
    for (const LiniaUmowy& l : wszystkie) {
        if (!filtr_.pasuje(l)) continue;
        wynik.append(l.id);
        linie_.insert(l.id, l);
    }
    lista().ustawPodpowiedz(wszystkie.isEmpty()
                                ? ekran_.pusta.toString()
                                : QStringLiteral("Nic nie pasuje do roku, osoby i stanu wypłaty nad listą."));
    return wynik;
}

QStringList frmUmowy::tekstyWiersza(qint64 id) {
    const LiniaUmowy& l = linie_[id];
    QStringList teksty{FormatDaty(l.zawarta), l.nazwisko,           l.numer,
                       FormatKwoty(l.brutto), FormatKwoty(l.netto), FormatDaty(l.wyplacona)};
    if (rodzaj_.kolumna("wys_mcs").tabela && o_.stale.MCSAkt)
        teksty.append(l.wyslana ? QStringLiteral("T") : QString());
    return teksty;
}

bool frmUmowy::przejdz(qint64 id) { return umowy_->Wypisz(id); }

bool frmUmowy::zapisz(qint64 id) {
    umowy_->Wpisz();
    if (const auto linia = umowy_->linia(id)) linie_[id] = *linia;
    pokazSumy();
    return true;
}

void frmUmowy::porzuc() { umowy_->Porzuc(); }

bool frmUmowy::skasuj(qint64 id) {
    Q_UNUSED(id)
    return umowy_->Usun();
}

// Deliberate: after a deletion the list begins at its first row.
qint64 frmUmowy::poUsunieciu(qint64 id) {
    Q_UNUSED(id)
    return -1;
}

std::optional<QDate> frmUmowy::dataUmowy() {
    frmUZLData okno(rodzaj_, this);
    return okno.exec() == Accepted ? std::optional(okno.data()) : std::nullopt;
}

std::optional<qint64> frmUmowy::utworz() {
    const QList<qint64> wybrani = frmWybPr::wybierz(o_, rodzaj_.trybWyboru, frmWybPr::Ilu::Jeden, this,
                                                    biezacy() >= 0 ? linie_.value(biezacy()).prcId : -1);
    if (wybrani.isEmpty()) return std::nullopt;
    const auto dzien = dataUmowy();
    if (!dzien) return std::nullopt;
    const qint64 id = umowy_->Nowy(wybrani.first(), *dzien);
    odslon(id);
    return id;
}

void frmUmowy::kopiuj() {
    if (biezacy() < 0 || !Wpisz()) return;
    const auto dzien = dataUmowy();
    if (!dzien) return;
    const qint64 id = umowy_->Kopia(biezacy(), *dzien);
    odslon(id);
    Wczytaj(id);
}

void frmUmowy::pokazano(qint64 id) {
    const bool jest = id >= 0;
    const LiniaUmowy linia = jest ? linie_.value(id) : LiniaUmowy{};
    labOsoba_->setText(jest ? linia.imie + QLatin1Char(' ') + umowy_->tabela().tekst(rodzaj_.kolumna("Naz")) +
                                  QStringLiteral("  (nr %1)").arg(linia.prcId)
                            : QString());
    cmdKopia_->setEnabled(jest);
    zgubionyPrzelew_.clear();
    pokazPrzypomnienie();
}

void frmUmowy::pokazPrzypomnienie() {
    QStringList zdania;
    if (biezacy() >= 0) {
        const Wiazanie& pola = wiazanie();
        const RachunekUmowy rachunek = zPol();
        PodatekUmowy umowa{biezacy(), umowy_->tabela().liczba(rodzaj_.kolumna("us_id")),
                           CzytajDate(pola.tekst(QStringLiteral("dtpdata_wyp"))).value_or(QDate()),
                           rachunek.Podatek, rachunek.przelewem};
        if (rodzaj_.wybierzUrzad)
            if (const Wartosc urzad = pola.wartosc(QStringLiteral("cbous_id"));
                std::holds_alternative<qint64>(urzad))
                umowa.usId = std::get<qint64>(urzad);
        if (!zgubionyPrzelew_.isEmpty())
            zdania += QStringLiteral("Przeliczenie wyzerowało kwotę „Przelewem”: było %1 zł.")
                          .arg(zgubionyPrzelew_);
        zdania += PrzypomnieniePodatku(o_, rodzaj_, umowy_->tabela(), umowa);
    }
    zdania.removeAll(QString());
    Wyglad::ustawBaner(*labPrzypomnienie_, zdania.join(QLatin1Char(' ')));
}

} // namespace tornel::contracts
