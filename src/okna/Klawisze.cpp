#include "okna/Klawisze.h"
#include <algorithm>
#include <QAbstractButton>
#include <QShortcut>

namespace tornel::okna {

namespace {

using enum Polecenie;

constexpr Klawisz kKlawisze[] = {
    {Nowy, QKeyCombination(Qt::Key_Insert), u"Insert", u"nowa pozycja"},
    {Usun, QKeyCombination(Qt::Key_Delete), u"Delete", u"na liście: usunięcie zaznaczonej pozycji"},
    {Edycja, QKeyCombination(Qt::Key_F2), u"F2", u"z listy do pól zaznaczonej pozycji, jak Enter"},
    {Odswiez, QKeyCombination(Qt::Key_F5), u"F5", u"odczyt danych na nowo"},
    {Przepisz, QKeyCombination(Qt::Key_F8), u"F8", u"„Przepisz”: dane z kadr"},
    {Przelicz, QKeyCombination(Qt::Key_F9), u"F9", u"obliczenie: „Przelicz”, „Przygotowanie KEDU”"},
    {Szukaj, Qt::CTRL | Qt::Key_F, u"Ctrl+F", u"do pola szukania"},
    {Zapisz, Qt::CTRL | Qt::Key_S, u"Ctrl+S", u"zapis bez zamykania ekranu"},
    {Zatwierdz, Qt::CTRL | Qt::Key_Return, u"Ctrl+Enter",
     u"zapis i zamknięcie ekranu; w okienku wyróżniony przycisk"},
    {Zamknij, QKeyCombination(Qt::Key_Escape), u"Escape", u"zamknięcie ekranu"},
};

constexpr bool wKolejnosciPolecen() {
    for (std::size_t i = 0; i < std::size(kKlawisze); ++i)
        if (static_cast<std::size_t>(kKlawisze[i].polecenie) != i) return false;
    return true;
}
static_assert(wKolejnosciPolecen(), "the table follows the order of Polecenie");

/// Enter of the number block is the same key to a clerk.
QList<QKeySequence> nacisniecia(Polecenie polecenie) {
    const Klawisz& k = klawisz(polecenie);
    if (k.klawisz.key() != Qt::Key_Return) return {k.klawisz};
    return {k.klawisz, QKeyCombination(k.klawisz.keyboardModifiers(), Qt::Key_Enter)};
}

/// Not a button's own shortcut, which would take the place of its letter. The shortcut stands below the
/// button, so that it is as able as that is.
QShortcut* skrot(Polecenie polecenie, QWidget& czyj, Qt::ShortcutContext zasieg) {
    auto* nowy = new QShortcut(&czyj);
    nowy->setKeys(nacisniecia(polecenie));
    nowy->setContext(zasieg);
    return nowy;
}

} // namespace

std::span<const Klawisz> klawisze() { return kKlawisze; }

const Klawisz& klawisz(Polecenie polecenie) { return kKlawisze[static_cast<std::size_t>(polecenie)]; }

void podlacz(Polecenie polecenie, QAbstractButton& przycisk) {
    QObject::connect(skrot(polecenie, przycisk, Qt::WindowShortcut), &QShortcut::activated, &przycisk,
                     &QAbstractButton::click);
    dopiszKlawisz(przycisk, klawisz(polecenie).napis);
}

void podlacz(Polecenie polecenie, QAbstractButton& przycisk, QWidget& gdzie) {
    QObject::connect(skrot(polecenie, gdzie, Qt::WidgetShortcut), &QShortcut::activated, &przycisk,
                     &QAbstractButton::click);
    dopiszKlawisz(przycisk, klawisz(polecenie).napis);
}

void podlacz(Polecenie polecenie, QWidget& ekran, std::function<void()> czynnosc) {
    const auto skroty = ekran.findChildren<QShortcut*>();
    const bool zajety = std::ranges::any_of(skroty, [polecenie](const QShortcut* s) {
        return s->context() == Qt::WindowShortcut && s->key() == QKeySequence(klawisz(polecenie).klawisz);
    });
    if (zajety) return;
    QObject::connect(skrot(polecenie, ekran, Qt::WindowShortcut), &QShortcut::activated, &ekran,
                     std::move(czynnosc));
}

void dopiszKlawisz(QWidget& widzet, QStringView napis) {
    const QString tekst = widzet.toolTip();
    if (tekst.contains(napis)) return;
    widzet.setToolTip(tekst.isEmpty() ? napis.toString()
                                      : QStringLiteral("%1 (%2)").arg(tekst, napis.toString()));
}

} // namespace tornel::okna
