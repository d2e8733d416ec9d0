#include "tax/frmListaPIT4Nowy.h"
#include "common/Liczby.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <limits>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::tax {

namespace {

constexpr int kNajdluzszeListy = 50;

PoleTekstu* poleKlucza(const QString& nazwa, const QString& dostepna, const QString& tekst, int znakow) {
    auto* pole = new PoleTekstu(tekst);
    pole->setObjectName(nazwa);
    pole->setAccessibleName(dostepna);
    pole->setMaxLength(znakow);
    pole->setAlignment(Qt::AlignHCenter);
    pole->setFixedWidth((znakow + 3) * 2 * Wyglad::kSiatka);
    return pole;
}

/// Each character in brackets, so that two blanks are told from one.
QString wNawiasach(const QString& listy) {
    QString wynik;
    for (const QChar znak : listy) wynik += u'[' + QString(znak) + u']';
    return wynik;
}

} // namespace

frmListaPIT4Nowy::frmListaPIT4Nowy(QDate dzis, Listy listy, QWidget* rodzic)
    : Okno(QStringLiteral("frmListaPIT4Nowy"), rodzic), dzis_(dzis),
      txtMies_(
          poleKlucza(QStringLiteral("txtMies"), QStringLiteral("miesiąc"), FormatMiesiaca(dzis.month()), 2)),
      txtRok_(poleKlucza(QStringLiteral("txtRok"), QStringLiteral("rok"), FormatRoku(dzis.year()), 4)),
      txtNr_(poleKlucza(QStringLiteral("txtNr"), QStringLiteral("numer"), QStringLiteral("00"), 5)),
      txtListy_(new PoleTekstu), labListy_(new QLabel) {
    setWindowTitle(QStringLiteral("Nowa lista PIT-4"));
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(pola(listy));
    uklad->addStretch(1);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&Dalej")));
    for (PoleTekstu* pole : {txtMies_, txtRok_, txtNr_}) pole->installEventFilter(this);
    txtMies_->setFocus();
}

QWidget* frmListaPIT4Nowy::pola(Listy listy) {
    auto* calosc = new QWidget;
    auto* siatka = new QGridLayout(calosc);
    siatka->setContentsMargins(0, 0, 0, 0);
    auto* podpis = new QLabel(QStringLiteral("PIT-4 miesiac, rok, numer"));
    podpis->setBuddy(txtMies_);
    siatka->addWidget(podpis, 0, 0);
    auto* klucz = new QHBoxLayout;
    for (PoleTekstu* pole : {txtMies_, txtRok_, txtNr_}) klucz->addWidget(pole);
    klucz->addStretch(1);
    siatka->addLayout(klucz, 0, 1);
    txtListy_->setObjectName(QStringLiteral("txtListy"));
    txtListy_->setMaxLength(kNajdluzszeListy);
    labListy_->setObjectName(QStringLiteral("labListy"));
    labListy_->setTextFormat(Qt::PlainText);
    labListy_->setProperty("podpowiedz", true);
    // They belong to the window even where nobody is asked, so that they go with it.
    auto* napis = new QLabel(QStringLiteral("Listy wybrane do PIT-4:"));
    napis->setBuddy(txtListy_);
    siatka->addWidget(napis, 1, 0);
    siatka->addWidget(txtListy_, 1, 1);
    siatka->addWidget(labListy_, 2, 1);
    for (QWidget* w :
         {static_cast<QWidget*>(napis), static_cast<QWidget*>(txtListy_), static_cast<QWidget*>(labListy_)})
        w->setVisible(listy == Listy::Pytaj);
    connect(txtListy_, &QLineEdit::textChanged, this,
            [this](const QString& tekst) { labListy_->setText(wNawiasach(tekst)); });
    return calosc;
}

bool frmListaPIT4Nowy::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    const auto* pole = qobject_cast<const PoleTekstu*>(obiekt);
    if (zdarzenie->type() == QEvent::FocusOut) opuszczono(pole);
    if (zdarzenie->type() == QEvent::KeyPress) {
        const int klawisz = static_cast<const QKeyEvent*>(zdarzenie)->key();
        PoleTekstu* dalej = pole == txtMies_ ? txtRok_ : pole == txtRok_ ? txtNr_ : nullptr;
        if (dalej && (klawisz == Qt::Key_Return || klawisz == Qt::Key_Enter)) {
            dalej->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return Okno::eventFilter(obiekt, zdarzenie);
}

void frmListaPIT4Nowy::opuszczono(const PoleTekstu* pole) {
    if (pole == txtMies_) {
        const auto mies = CzytajLiczbe(txtMies_->text(), 1, 12);
        txtMies_->setText(FormatMiesiaca(mies.value_or(dzis_.month())));
    } else if (pole == txtRok_) {
        const auto rok = CzytajLiczbe(txtRok_->text(), 0, 9999);
        txtRok_->setText(FormatRoku(rok.value_or(dzis_.year())));
    } else if (pole == txtNr_) {
        const auto numer = CzytajLiczbe(txtNr_->text(), 0, std::numeric_limits<qint16>::max());
        txtNr_->setText(FormatMiesiaca(numer.value_or(0)));
    }
}

// Enter in a field leaves it without the focus moving.
int frmListaPIT4Nowy::liczba(const PoleTekstu* pole) const {
    if (result() != Accepted) return 0;
    const auto wpisana = CzytajLiczbe(pole->text(), 0, std::numeric_limits<qint16>::max());
    if (pole == txtMies_) return wpisana && *wpisana >= 1 && *wpisana <= 12 ? *wpisana : dzis_.month();
    if (pole == txtRok_) return wpisana.value_or(dzis_.year());
    return wpisana.value_or(0);
}

QString frmListaPIT4Nowy::listy() const { return result() == Accepted ? txtListy_->text() : QString(); }

} // namespace tornel::tax
