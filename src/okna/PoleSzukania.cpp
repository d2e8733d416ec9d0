#include "okna/PoleSzukania.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QCoreApplication>
#include <QKeyEvent>

namespace tornel::okna {

namespace {

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
    default:
        QLineEdit::keyPressEvent(zdarzenie);
    }
}

int PoleSzukania::znajdz(const QString& tekst) const {
    const QAbstractItemModel& model = *lista_.model();
    const bool numer = samCyfry(tekst);
    const QString szukany = numer ? bezZer(tekst) : tekst;
    int poczatek = -1;
    int wSrodku = -1;
    for (int i = 0; i < model.rowCount(); ++i) {
        QString tu = model.index(i, numer ? kolumnaNumeru_ : kolumnaNazwiska_).data().toString();
        if (numer) tu = bezZer(tu);
        if (tu.compare(szukany, Qt::CaseInsensitive) == 0) return i;
        if (poczatek < 0 && tu.startsWith(szukany, Qt::CaseInsensitive)) poczatek = i;
        if (!numer && wSrodku < 0 && tu.contains(szukany, Qt::CaseInsensitive)) wSrodku = i;
    }
    return poczatek >= 0 ? poczatek : wSrodku;
}

void PoleSzukania::szukaj(const QString& tekst) {
    const int wiersz = tekst.trimmed().isEmpty() ? -1 : znajdz(tekst.trimmed());
    QFont pismo = font();
    pismo.setStrikeOut(wiersz < 0 && !tekst.trimmed().isEmpty());
    setFont(pismo);
    if (wiersz >= 0) lista_.wybierz(lista_.lista().id(wiersz));
}

} // namespace tornel::okna
