#include "okna/PoleSzukania.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace tornel::okna {

namespace {

/// How well a row fits, from worst to best.
enum Trafnosc { Wcale, Czesc, Poczatek, Cale };

constexpr int kPrzyciskCzyszczenia = 3 * Wyglad::kSiatka + Wyglad::kSiatka / 2;

QString bezZer(const QString& numer) {
    qsizetype i = 0;
    while (i + 1 < numer.size() && numer.at(i) == QLatin1Char('0')) ++i;
    return numer.mid(i);
}

bool samCyfry(const QString& tekst) {
    return std::ranges::all_of(
        tekst, [](QChar znak) { return znak >= QLatin1Char('0') && znak <= QLatin1Char('9'); });
}

} // namespace

PoleSzukania::PoleSzukania(WidokListy& lista, int kolumnaNumeru, int kolumnaNazwiska, QWidget* rodzic)
    : QLineEdit(rodzic), lista_(lista), kolumnaNumeru_(kolumnaNumeru), kolumnaNazwiska_(kolumnaNazwiska) {
    setObjectName(QStringLiteral("txtSzukaj"));
    setPlaceholderText(QStringLiteral("Szukaj: numer lub nazwisko"));
    setAccessibleName(QStringLiteral("Szukaj"));
    setClearButtonEnabled(true);
    setMinimumHeight(Wyglad::kWysokoscPola);
    connect(this, &QLineEdit::textChanged, this, &PoleSzukania::szukaj);
    connect(&lista_, &WidokListy::filtrZdjety, this, [this] {
        const QSignalBlocker cisza(this);
        clear();
        powiedz({});
    });
    lista_.installEventFilter(this);
}

bool PoleSzukania::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (obiekt == &lista_ && zdarzenie->type() == QEvent::KeyPress) {
        auto& klawisz = static_cast<QKeyEvent&>(*zdarzenie);
        const QString tekst = klawisz.text();
        const bool skrot = (klawisz.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
        if (!skrot && !tekst.isEmpty() && tekst.front().isLetterOrNumber()) {
            setFocus(Qt::OtherFocusReason);
            setText(tekst);
            return true;
        }
    }
    return QLineEdit::eventFilter(obiekt, zdarzenie);
}

void PoleSzukania::keyPressEvent(QKeyEvent* zdarzenie) {
    switch (zdarzenie->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        lista_.setFocus(Qt::OtherFocusReason);
        QCoreApplication::sendEvent(&lista_, zdarzenie);
        zdarzenie->accept(); // what the list passed on has already reached the window
        break;
    case Qt::Key_Escape:
        if (text().isEmpty()) return zdarzenie->ignore();
        clear();
        break;
    default:
        QLineEdit::keyPressEvent(zdarzenie);
    }
}

int PoleSzukania::trafnosc(const WierszListy& wiersz, const QString& szukany, bool numer) const {
    if (numer) {
        const QString tu = bezZer(wiersz.teksty.value(kolumnaNumeru_));
        return tu == szukany ? Cale : tu.startsWith(szukany) ? Poczatek : Wcale;
    }
    const QString tu = wiersz.teksty.value(kolumnaNazwiska_);
    if (tu.compare(szukany, Qt::CaseInsensitive) == 0) return Cale;
    if (tu.startsWith(szukany, Qt::CaseInsensitive)) return Poczatek;
    return tu.contains(szukany, Qt::CaseInsensitive) ? Czesc : Wcale;
}

void PoleSzukania::szukaj(const QString& tekst) {
    const QString przyciety = tekst.trimmed();
    if (przyciety.isEmpty()) {
        lista_.filtruj({});
        return powiedz({});
    }
    const bool numer = samCyfry(przyciety);
    const QString szukany = numer ? bezZer(przyciety) : przyciety;
    const int ile = lista_.filtruj(
        [=, this](const WierszListy& wiersz) { return trafnosc(wiersz, szukany, numer) != Wcale; });
    powiedz(ile == 0 ? QStringLiteral("nie znaleziono")
                     : QStringLiteral("%1 z %2").arg(ile).arg(lista_.lista().wszystkie().size()));
    if (ile == 0) return;
    int najlepsza = Wcale;
    qint64 id = -1;
    for (int i = 0; i < lista_.lista().rowCount(); ++i) {
        const int tu = trafnosc(lista_.lista().widoczny(i), szukany, numer);
        if (tu <= najlepsza) continue;
        najlepsza = tu;
        id = lista_.lista().id(i);
        if (tu == Cale) break;
    }
    lista_.wybierz(id);
}

void PoleSzukania::powiedz(const QString& wynik) {
    wynik_ = wynik;
    setAccessibleDescription(wynik);
    QFont pismo = font();
    pismo.setStrikeOut(wynik == QLatin1String("nie znaleziono"));
    setFont(pismo);
    setTextMargins(0, 0, wynik.isEmpty() ? 0 : fontMetrics().horizontalAdvance(wynik) + Wyglad::kSiatka, 0);
    update();
}

void PoleSzukania::paintEvent(QPaintEvent* zdarzenie) {
    QLineEdit::paintEvent(zdarzenie);
    if (wynik_.isEmpty()) return;
    QPainter malarz(this);
    QFont pismo = font();
    pismo.setStrikeOut(false);
    malarz.setFont(pismo);
    malarz.setPen(palette().color(QPalette::PlaceholderText));
    // To the left of the button that empties the field.
    malarz.drawText(rect().adjusted(0, 0, -kPrzyciskCzyszczenia, 0), Qt::AlignRight | Qt::AlignVCenter,
                    wynik_);
}

} // namespace tornel::okna
