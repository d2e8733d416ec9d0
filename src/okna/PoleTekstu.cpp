#include "okna/PoleTekstu.h"
#include "common/Daty.h"
#include "okna/KalendarzDaty.h"
#include <algorithm>
#include <memory>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <utility>

namespace tornel::okna {

namespace {

constexpr int kDlugoscDaty = 10;

bool jestCyfra(QChar znak) { return znak >= QLatin1Char('0') && znak <= QLatin1Char('9'); }

/// Whether the text may go on as a year: "19", "200", "2001", "2001-07". As a day and a month it goes on with
/// a fifth digit.
bool mozeBycRokiem(const QString& wpisany) {
    const auto cyfr = std::ranges::find_if_not(wpisany, jestCyfra) - wpisany.begin();
    if (cyfr < wpisany.size()) return cyfr == 4;
    const QString wiek = wpisany.left(2);
    return cyfr <= 4 &&
           (wiek == QLatin1String("19") || wiek == QLatin1String("20") || wiek == QLatin1String("21"));
}

/// The typed text with dashes: "01072001" is cut behind day and month, "1/7" becomes "01-7". What may be a
/// year in front stays as it is.
QString zKreskami(const QString& wpisany) {
    if (mozeBycRokiem(wpisany)) return MaskaDaty(wpisany);
    QString wynik;
    int wCzesci = 0;
    int czesci = 1;
    for (const QChar znak : wpisany) {
        const bool cyfra = jestCyfra(znak);
        const bool kolejna = czesci < 3 && wCzesci > 0;
        if (kolejna && (!cyfra || wCzesci == 2)) {
            if (wCzesci == 1) wynik.insert(wynik.size() - 1, QLatin1Char('0'));
            wynik += QLatin1Char('-');
            wCzesci = 0;
            ++czesci;
        }
        if (!cyfra) continue;
        wynik += znak;
        ++wCzesci;
    }
    if (czesci < 3 && wCzesci == 2) wynik += QLatin1Char('-');
    return wynik;
}

} // namespace

void ZaznaczTekst(QLineEdit& pole) {
    const auto dlugosc = static_cast<int>(pole.text().size());
    pole.setSelection(dlugosc, -dlugosc);
}

void ZaznaczDate(QLineEdit& pole) {
    const int dlugosc = std::min(kDlugoscDaty, static_cast<int>(pole.text().size()));
    pole.setSelection(dlugosc, -dlugosc);
}

void PoleTekstu::focusInEvent(QFocusEvent* zdarzenie) {
    QLineEdit::focusInEvent(zdarzenie);
    if (std::exchange(czekaNaPowrot_, false)) return;
    wejscieMysza_ = zdarzenie->reason() == Qt::MouseFocusReason;
    zaznacz();
}

void PoleTekstu::focusOutEvent(QFocusEvent* zdarzenie) {
    const auto powod = zdarzenie->reason();
    czekaNaPowrot_ = powod == Qt::ActiveWindowFocusReason || powod == Qt::PopupFocusReason;
    QLineEdit::focusOutEvent(zdarzenie);
}

void PoleTekstu::mouseReleaseEvent(QMouseEvent* zdarzenie) {
    QLineEdit::mouseReleaseEvent(zdarzenie);
    // The click that entered the field has put the caret under the pointer; a drag keeps what it selected.
    if (wejscieMysza_ && !hasSelectedText()) zaznacz();
    wejscieMysza_ = false;
}

PoleDaty::PoleDaty(QWidget* rodzic) : PoleTekstu(rodzic) {
    setPlaceholderText(QStringLiteral("dd-mm-rrrr"));
    setToolTip(QStringLiteral("Data dd-mm-rrrr, kalendarz: F4"));
    connect(this, &QLineEdit::textEdited, this, &PoleDaty::maskuj);
    connect(this, &QLineEdit::textChanged, this, [this] { poprzednia_ = text().size(); });
}

void PoleDaty::otworzKalendarz() {
    if (!isReadOnly()) OtworzKalendarz(*this, QDate::currentDate());
}

void PoleDaty::keyPressEvent(QKeyEvent* zdarzenie) {
    const bool strzalka = zdarzenie->key() == Qt::Key_Down && zdarzenie->modifiers() == Qt::AltModifier;
    if (strzalka || (zdarzenie->key() == Qt::Key_F4 && zdarzenie->modifiers() == Qt::NoModifier))
        otworzKalendarz();
    else
        PoleTekstu::keyPressEvent(zdarzenie);
}

void PoleDaty::contextMenuEvent(QContextMenuEvent* zdarzenie) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    menu->addSeparator();
    QAction* kalendarz = menu->addAction(QStringLiteral("Kalendarz"), this, &PoleDaty::otworzKalendarz);
    kalendarz->setShortcut(Qt::Key_F4);
    kalendarz->setEnabled(!isReadOnly());
    menu->exec(zdarzenie->globalPos());
}

void PoleDaty::maskuj(const QString& wpisany) {
    const bool dopisano = wpisany.size() > poprzednia_ && cursorPosition() == wpisany.size();
    QString nowy;
    if (const auto wklejona = CzytajDate(wpisany))
        nowy = FormatDaty(*wklejona);
    else
        nowy = dopisano ? zKreskami(wpisany) : MaskaDaty(wpisany);
    if (nowy == wpisany) return;
    const int kursor = cursorPosition();
    setText(nowy);
    setCursorPosition(dopisano ? static_cast<int>(nowy.size()) : kursor);
}

} // namespace tornel::okna
