#include "app/frmWyglad.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QApplication>
#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tornel::app {

namespace {

constexpr struct {
    WyborMotywu wybor;
    QStringView nazwa, napis;
} kMotywy[] = {
    {WyborMotywu::JakPulpit, u"optJakPulpit", u"&Jak pulpit"},
    {WyborMotywu::Jasny, u"optJasny", u"Ja&sne"},
    {WyborMotywu::Ciemny, u"optCiemny", u"&Ciemne"},
};

void pokazMotyw(WyborMotywu wybor) {
    Wyglad::pokazMotyw(*static_cast<QApplication*>(QCoreApplication::instance()), wybor);
}

} // namespace

frmWyglad::frmWyglad(QWidget* rodzic)
    : Okno(QStringLiteral("frmWyglad"), rodzic), przedtem_(zapamietanyMotyw()),
      wybory_(new QButtonGroup(this)) {
    setWindowTitle(QStringLiteral("Wygląd"));
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    auto* ramka = new QGroupBox(QStringLiteral("BARWY OKIEN"));
    ramka->setMinimumWidth(36 * Wyglad::kSiatka);
    auto* opcje = new QVBoxLayout(ramka);
    for (const auto& m : kMotywy) {
        auto* opcja = new QRadioButton(m.napis.toString());
        opcja->setObjectName(m.nazwa.toString());
        opcja->setChecked(m.wybor == przedtem_);
        wybory_->addButton(opcja, static_cast<int>(m.wybor));
        opcje->addWidget(opcja);
    }
    auto* podpowiedz = new QLabel(QStringLiteral("Zaznaczone barwy widać od razu."));
    podpowiedz->setProperty("podpowiedz", true);
    opcje->addWidget(podpowiedz);
    uklad->addWidget(ramka);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&OK")));
    uklad->setSizeConstraint(QLayout::SetFixedSize);
    connect(wybory_, &QButtonGroup::idClicked, this,
            [](int id) { pokazMotyw(static_cast<WyborMotywu>(id)); });
    wybory_->checkedButton()->setFocus();
}

void frmWyglad::done(int wynik) {
    const auto wybrany = static_cast<WyborMotywu>(wybory_->checkedId());
    if (wynik == Accepted)
        zapamietajMotyw(wybrany);
    else if (wybrany != przedtem_)
        pokazMotyw(przedtem_);
    Okno::done(wynik);
}

} // namespace tornel::app
