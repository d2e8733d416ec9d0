#include "personnel/frmDniWolnePr.h"
#include "common/Liczby.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/frmWybPr.h"
#include "personnel/Pracownicy.h"
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::personnel {

namespace {

enum KolumnaWolnych { WolneNumer, WolneNazwisko };

constexpr int kSzerokoscPracownikow = 26 * Wyglad::kSiatka;

} // namespace

frmDniWolnePr::frmDniWolnePr(Otoczenie& otoczenie, QWidget* rodzic)
    : frmDniWolnePr(otoczenie, rodzic,
                    przycisk(QStringLiteral("cmdNowyPrac"), QStringLiteral("No&wy prac."), u"pracownicy"),
                    przycisk(QStringLiteral("cmdUsunPrac"), QStringLiteral("U&suń prac."), u"usun")) {}

frmDniWolnePr::frmDniWolnePr(Otoczenie& otoczenie, QWidget* rodzic, QPushButton* nowyPrac,
                             QPushButton* usunPrac)
    : frmKalendarz(otoczenie, QStringLiteral("frmDniWolnePr"), {nowyPrac, usunPrac}, rodzic),
      lvwPrac_(
          new WidokListy({{QStringLiteral("NR"), Qt::AlignRight}, {QStringLiteral("NAZWISKO")}}, {26, 74})),
      cmdUsunPrac_(usunPrac) {
    setWindowTitle(QStringLiteral("Dni wolne pracowników"));
    lvwPrac_->setObjectName(QStringLiteral("lvwPrac"));
    lvwPrac_->setAccessibleName(QStringLiteral("Pracownicy"));
    lvwPrac_->ustawPodpowiedz(
        QStringLiteral("Nikt nie ma jeszcze własnego kalendarza.\nPrzycisk „Nowy prac.” "
                       "zakłada pierwszy, a „Transport do pracownika” w menu „Dni "
                       "wolne” przepisuje kalendarz ogólny."));
    auto* lewa = new QWidget;
    lewa->setFixedWidth(kSzerokoscPracownikow);
    auto* uklad = new QVBoxLayout(lewa);
    uklad->setContentsMargins(0, 0, 0, 0);
    auto* txtSzukaj = new PoleSzukania(*lvwPrac_, WolneNumer, WolneNazwisko);
    uklad->addWidget(txtSzukaj);
    uklad->addWidget(lvwPrac_, 1);
    dodajListe(lewa);
    setTabOrder(txtSzukaj, lvwPrac_);
    setTabOrder(lvwPrac_, &listaMiesiecy());
    connect(nowyPrac, &QPushButton::clicked, this, [this] { poZapisie([this] { nowyPracownik(); }); });
    connect(usunPrac, &QPushButton::clicked, this, &frmDniWolnePr::usunPracownika);
    connect(lvwPrac_, &WidokListy::wybrano, this, &frmDniWolnePr::wybierzPracownika);
    WczytajPracownikow(-1, std::nullopt);
    lvwPrac_->setFocus();
}

qint64 frmDniWolnePr::czyj() const { return lvwPrac_->wybrany(); }

void frmDniWolnePr::WczytajPracownikow(qint64 prcId, std::optional<MiesiacKalendarza> zaznacz) {
    const Pracownicy pracownicy(otoczenie());
    QList<WierszListy> wiersze;
    for (const qint64 numer : kalendarz().pracownicy()) {
        const QString nazwisko = pracownicy.nazwisko(numer);
        wiersze.append({numer,
                        {FormatNumeru(numer), nazwisko},
                        nazwisko.isEmpty() ? QStringLiteral("Nie ma w kadrach") : QString()});
    }
    porzuc();
    zaznacz_ = zaznacz;
    const bool pusta = wiersze.isEmpty();
    lvwPrac_->ustaw(std::move(wiersze), prcId);
    zaznacz_.reset();
    if (pusta) WczytajMiesiace();
}

void frmDniWolnePr::wybierzPracownika(qint64 prcId) {
    if (biezacy() && biezacy()->prcId == prcId) return;
    // The same month of the next employee, so that a month can be looked through.
    const auto zaznacz = zaznacz_ ? zaznacz_ : biezacy();
    poZapisie([&] { WczytajMiesiace(zaznacz); });
}

void frmDniWolnePr::odswiez(const MiesiacKalendarza& zaznacz) { WczytajPracownikow(zaznacz.prcId, zaznacz); }

void frmDniWolnePr::cofnijListy() {
    if (biezacy()) lvwPrac_->wybierz(biezacy()->prcId);
    frmKalendarz::cofnijListy();
}

void frmDniWolnePr::pokazano(const std::optional<MiesiacKalendarza>& miesiac) {
    cmdUsunPrac_->setEnabled(czyj() > 0);
    const QString nazwisko = miesiac ? Pracownicy(otoczenie()).nazwisko(miesiac->prcId) : QString();
    ustawTytulDni(miesiac ? nazwisko + QStringLiteral(", ") + nazwaMiesiaca(*miesiac) : QString());
}

bool frmDniWolnePr::jestKomu() {
    if (czyj() > 0) return true;
    nowyPracownik();
    return false;
}

void frmDniWolnePr::nowyPracownik() {
    const QList<qint64> wybrany =
        frmWybPr::wybierz(otoczenie(), kTrybPracujacy, frmWybPr::Ilu::Jeden, this, czyj());
    if (!wybrany.isEmpty()) nowyMiesiac(wybrany.first());
}

void frmDniWolnePr::usunPracownika() {
    const qint64 prcId = czyj();
    if (prcId <= 0) return;
    const qint64 sasiad = lvwPrac_->sasiad(prcId);
    if (kalendarz().UsunPracownika(prcId)) WczytajPracownikow(sasiad, std::optional(biezacy()));
}

} // namespace tornel::personnel
