#include "okna/PoleMiesiaca.h"
#include "common/Daty.h"
#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QKeyEvent>
#include <QSpinBox>

namespace tornel::okna {

namespace {

/// What is typed within this time belongs together.
constexpr int kPrzerwaPisania = 1500; // ms

/// Twelve months, chosen also by typing their number or the beginning of their name; a key that makes the
/// text none of them begins it anew.
class WyborMiesiaca : public QComboBox {
public:
    WyborMiesiaca() {
        for (int m = 1; m <= 12; ++m) addItem(FormatMiesiaca(m) + QStringLiteral("  ") + NazwaMiesiaca(m));
        setMaxVisibleItems(12);
        setToolTip(QStringLiteral("Wpisz numer albo początek nazwy: 7, 07, lip"));
        view()->installEventFilter(this);
    }

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override {
        if (obiekt == view() && zdarzenie->type() == QEvent::KeyPress &&
            wpisz(static_cast<QKeyEvent&>(*zdarzenie)))
            return true;
        return QComboBox::eventFilter(obiekt, zdarzenie);
    }

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override {
        if (!wpisz(*zdarzenie)) QComboBox::keyPressEvent(zdarzenie);
    }

private:
    bool wpisz(const QKeyEvent& zdarzenie) {
        const QString znak = zdarzenie.text();
        const bool skrot = (zdarzenie.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
        if (skrot || znak.isEmpty() || !znak.front().isLetterOrNumber()) return false;
        if (!odOstatniego_.isValid() || odOstatniego_.elapsed() > kPrzerwaPisania) wpisane_.clear();
        odOstatniego_.start();
        QList<int> pasujace = PasujaceMiesiace(wpisane_ += znak);
        if (pasujace.isEmpty()) pasujace = PasujaceMiesiace(wpisane_ = znak);
        if (pasujace.isEmpty()) {
            wpisane_.clear();
            return true;
        }
        // An open list shows it and waits for Enter.
        if (view()->isVisible())
            view()->setCurrentIndex(model()->index(pasujace.first() - 1, modelColumn()));
        else
            setCurrentIndex(pasujace.first() - 1);
        return true;
    }

    QString wpisane_;
    QElapsedTimer odOstatniego_;
};

} // namespace

PoleMiesiaca::PoleMiesiaca(QDate wstepna, QWidget* rodzic, const NazwyPolMiesiaca& nazwy)
    : QWidget(rodzic), cboMies_(new WyborMiesiaca), spnRok_(new QSpinBox) {
    auto* formularz = new QFormLayout(this);
    formularz->setContentsMargins(0, 0, 0, 0);
    cboMies_->setObjectName(QStringLiteral("cboMies") + nazwy.koncowka);
    cboMies_->setAccessibleName(QStringLiteral("Miesiąc"));
    cboMies_->setCurrentIndex(wstepna.isValid() ? wstepna.month() - 1 : 0);
    spnRok_->setObjectName(QStringLiteral("spnRok") + nazwy.koncowka);
    spnRok_->setAccessibleName(QStringLiteral("Rok"));
    spnRok_->setRange(kPierwszyRok, kOstatniRok);
    spnRok_->setValue(wstepna.isValid() ? wstepna.year() : kPierwszyRok);
    formularz->addRow(nazwy.mies, cboMies_);
    formularz->addRow(nazwy.rok, spnRok_);
}

QDate PoleMiesiaca::pierwszyDzien() const {
    return PierwszyDzien(spnRok_->value(), cboMies_->currentIndex() + 1);
}

} // namespace tornel::okna
