#include "app/frmLogowanie.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace tornel::app {

namespace {

constexpr int kIkonaLogowania = 6 * Wyglad::kSiatka;

PoleTekstu* pole(QGridLayout& siatka, int wiersz, const QString& nazwa, const QString& podpis) {
    auto* linia = new PoleTekstu;
    linia->setObjectName(nazwa);
    linia->setMinimumWidth(28 * Wyglad::kSiatka);
    auto* etykieta = new QLabel(podpis);
    etykieta->setBuddy(linia);
    siatka.addWidget(etykieta, wiersz, 1);
    siatka.addWidget(linia, wiersz, 2);
    return linia;
}

} // namespace

frmLogowanie::frmLogowanie(QWidget* rodzic) : Okno(QStringLiteral("frmLogowanie"), rodzic) {
    setWindowTitle(QStringLiteral("Logowanie"));
    auto* siatka = new QGridLayout(this);
    siatka->setContentsMargins(3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka,
                               2 * Wyglad::kSiatka);
    siatka->setHorizontalSpacing(2 * Wyglad::kSiatka);

    auto* obraz = new QLabel;
    obraz->setPixmap(Wyglad::ikona(u"program").pixmap(kIkonaLogowania, kIkonaLogowania));
    siatka->addWidget(obraz, 0, 0, 3, 1, Qt::AlignTop);
    siatka->addWidget(new QLabel(QStringLiteral("Wprowadź swoje hasło do programu")), 0, 1, 1, 2);
    txtUser_ = pole(*siatka, 1, QStringLiteral("txtUser"), QStringLiteral("Użytkownik:"));
    txtPass_ = pole(*siatka, 2, QStringLiteral("txtPass"), QStringLiteral("Hasło:"));
    txtPass_->setEchoMode(QLineEdit::Password);
    siatka->setRowMinimumHeight(3, Wyglad::kSiatka);
    siatka->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&OK")), 4, 0, 1, 3);
    siatka->setSizeConstraint(QLayout::SetFixedSize);

    txtUser_->installEventFilter(this);
    txtUser_->setFocus();
}

QString frmLogowanie::nazwa() const { return txtUser_->text(); }
QString frmLogowanie::haslo() const { return txtPass_->text(); }

bool frmLogowanie::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (obiekt == txtUser_ && zdarzenie->type() == QEvent::KeyPress) {
        const int klawisz = static_cast<QKeyEvent*>(zdarzenie)->key();
        if (klawisz == Qt::Key_Return || klawisz == Qt::Key_Enter) {
            txtPass_->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QDialog::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::app
