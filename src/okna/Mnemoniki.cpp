#include "okna/Mnemoniki.h"
#include <algorithm>
#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QShortcut>

namespace tornel::okna::mnemoniki {

namespace {

struct Wiersz {
    QStringView napis;
    QStringView litery; ///< in the order of preference
};

constexpr Wiersz kLitery[] = {
    // the bar; "Pomoc" also stands in its own menu and at the foot of windows, "Honoraria" in a menu
    {u"Plik", u"p"},
    {u"Pracownicy", u"r"},
    {u"Płace", u"a"},
    {u"Zlecenia", u"z"},
    {u"Dni wolne", u"d"},
    {u"Nieobecności", u"n"},
    {u"Adresy", u"s"},
    {u"Analizy", u"l"},
    {u"Konfiguracja", u"k"},
    {u"Pomoc", u"mcop"},
    // "Plik"
    {u"Cofnij", u"c"},
    {u"Ponów", u"p"},
    {u"Otwórz bazę", u"o"},
    {u"Ostatnie bazy", u"s"},
    {u"Koniec", u"k"},
    // "Pracownicy"
    {u"Wszyscy pracownicy", u"w"},
    {u"Tylko pracujący", u"p"},
    {u"Tylko zwolnieni", u"z"},
    {u"Zatrudnieni na umowę zlecenie", u"u"},
    {u"Zatrudnieni na umowę o dzieło", u"d"},
    {u"Otrzymujący honoraria", u"h"},
    {u"Lista umów o pracę", u"l"},
    // "Płace"
    {u"Lista płac", u"l"},
    {u"Nadgodziny", u"n"},
    {u"Składniki płac", u"s"},
    // "Zlecenia"
    {u"Umowy zlecenia", u"z"},
    {u"Umowy o dzieło", u"d"},
    {u"Honoraria", u"h"},
    // "Dni wolne"
    {u"Dni wolne ogólne", u"o"},
    {u"Dni wolne pracownika", u"p"},
    {u"Transport do pracownika", u"t"},
    // "Nieobecności"
    {u"Urlopy", u"u"},
    {u"Zwolnienia lekarskie", u"z"},
    // "Adresy"
    {u"Urzędy skarbowe", u"u"},
    {u"Adresy działalności", u"a"},
    {u"Konta bankowe", u"k"},
    // "Analizy": the forms by a digit of their number
    {u"Lista dokumentów ZUS DRA", u"d"},
    {u"Wydruki ZUS", u"w"},
    {u"Zbiorówka za miesiąc", u"m"},
    {u"Zbiorówka za rok", u"r"},
    {u"PIT-4", u"4"},
    {u"PIT-8B", u"8"},
    {u"PIT-11", u"1"},
    {u"PIT-40", u"0"},
    // "Konfiguracja"
    {u"Stałe programu", u"s"},
    {u"Zmiana hasła", u"h"},
    {u"Utwórz archiwum danych", u"u"},
    {u"Przywróć z archiwum", u"p"},
    {u"Dziennik zmian", u"d"},
    {u"Administrator", u"a"},
    {u"Lista użytkowników", u"l"},
    {u"Aktualizuj bazę danych", u"a"},
    {u"Pobierz strukturę bazy", u"p"},
    {u"O programie", u"o"},
    // lists
    {u"Kopiuj wiersze", u"jitf"},
    {u"Zaznacz wszystko", u"zty"},
    {u"Zapisz listę jako CSV...", u"vgz"},
    {u"Drukuj listę...", u"lęri"},
    {u"Kolumny", u"yo"},
    // whole payroll list, its prints
    {u"Przelicz dni wszystkich", u"d"},
    {u"Przepisz wszystkich", u"s"},
    {u"Przelicz wszystkich", u"l"},
    {u"Przepisz i przelicz wszystkich", u"i"},
    {u"Lista płac - wersja 2", u"2"},
    {u"Lista płac - wersja 3", u"3"},
    {u"Pokwitowania", u"p"},
    {u"Pokwitowanie dla wybranego", u"w"},
    {u"Wydruk zbiorówki", u"z"},
    {u"Wydruk przelewu dla pracownika", u"rp"},
    {u"Wydruk wszystkich przelewów", u"s"},
    {u"Wydruk przelewu dla podatku", u"d"},
    {u"Przelewy do MultiCash", u"m"},
    // contracts
    {u"Wydruk umowy - zlecenia", u"u"},
    {u"Wydruk umowy o dzieło", u"u"},
    {u"Wydruk rachunku", u"r"},
    {u"Wydruk przelewów od ... do ...", u"o"},
    {u"Wydruk przelewów od... do...", u"o"},
    {u"Wydruk przelewów dla podatku", u"d"},
    {u"Wydruk listy umów", u"l"},
    {u"Wydruk listy honorariów", u"l"},
    // personnel
    {u"Lista pracowników", u"l"},
    {u"Karta ewidencji czasu pracy", u"e"},
    {u"Lista obecności do podpisu", u"o"},
    {u"Karta przychodów", u"p"},
    {u"Zaświadczenie o zatrudnieniu i zarobkach", u"z"},
    // employment contracts
    {u"Umowa o pracę", u"u"},
    {u"Zmiana warunków umowy", u"z"},
    {u"Wypowiedzenie umowy", u"w"},
    {u"Świadectwo pracy", u"p"},
    // buttons
    {u"OK", u"ok"},
    {u"Przepisz", u"r"},
    {u"Przelicz dni", u"z"},
    {u"Wszyscy", u"s"},
    {u"Przygotowanie KEDU", u"k"},
    {u"Uaktywnij składniki", u"u"},
    {u"AktAll", u"k"},
    {u"DellAll", u"e"},
    {u"AktSys", u"s"},
    {u"Uaktywnij", u"tyij"},
};

using Zajete = QSet<QChar>;

/// The letter that a caption has; null for none.
QChar litera(const QString& napis) {
    const QKeySequence klawisz = QKeySequence::mnemonic(napis);
    return klawisz.isEmpty() ? QChar() : QChar(klawisz[0].key()).toLower();
}

/// Where the letter is marked: at the beginning of a word rather than within one; -1 if it does not occur.
qsizetype miejsce(const QString& napis, QChar znak) {
    qsizetype wewnatrz = -1;
    for (qsizetype i = 0; i < napis.size(); ++i) {
        if (napis[i].toLower() != znak) continue;
        if (i == 0 || !napis[i - 1].isLetterOrNumber()) return i;
        if (wewnatrz < 0) wewnatrz = i;
    }
    return wewnatrz;
}

/// What every keyboard has.
bool naKlawiszu(QChar znak) { return znak.unicode() < 128 && znak.isLetterOrNumber(); }

/// The first letters of the caption's words, then all the others.
QString wlasneLitery(const QString& napis) {
    QString poczatki, reszta;
    for (qsizetype i = 0; i < napis.size(); ++i) {
        if (!naKlawiszu(napis[i])) continue;
        (i == 0 || !napis[i - 1].isLetterOrNumber() ? poczatki : reszta) += napis[i].toLower();
    }
    return poczatki + reszta;
}

/// The caption with the first of the letters that it has and nobody else; as it was when there is none.
QString oznaczony(QString napis, QStringView wPorzadku, Zajete& zajete) {
    for (const QChar znak : wPorzadku) {
        const qsizetype gdzie = miejsce(napis, znak);
        if (gdzie < 0 || zajete.contains(znak)) continue;
        zajete.insert(znak);
        return napis.insert(gdzie, QLatin1Char('&'));
    }
    return napis;
}

enum class Nieznane { BezLitery, WlasneLitery };

template <typename T>
void oznacz(const QList<T*>& napisane, Nieznane nieznane, Zajete zajete) {
    for (const T* n : napisane) zajete.insert(litera(n->text()));
    for (const bool zTabeli : {true, false})
        for (T* n : napisane) {
            const QString napis = n->text();
            if (napis.isEmpty() || !litera(napis).isNull() || litery(napis).isEmpty() == zTabeli) continue;
            if (zTabeli)
                n->setText(oznaczony(napis, litery(napis), zajete));
            else if (nieznane == Nieznane::WlasneLitery)
                n->setText(oznaczony(napis, wlasneLitery(napis), zajete));
        }
}

template <typename T>
void oznaczWejscia(T& menu) {
    oznacz(menu.actions(), Nieznane::WlasneLitery, {});
    for (const QAction* wejscie : menu.actions())
        if (wejscie->menu()) nadaj(*wejscie->menu());
}

} // namespace

QStringView litery(QStringView napis) {
    const QStringView poczatek = napis.left(napis.indexOf(QLatin1Char(':')));
    const auto* wiersz = std::ranges::find(kLitery, poczatek, &Wiersz::napis);
    return wiersz == std::end(kLitery) ? QStringView() : wiersz->litery;
}

void nadaj(QMenuBar& pasek) { oznaczWejscia(pasek); }
void nadaj(QMenu& menu) { oznaczWejscia(menu); }

void nadajPrzyciskom(QWidget& okno) {
    Zajete zajete;
    for (const auto* napis : okno.findChildren<QLabel*>())
        if (napis->buddy()) zajete.insert(litera(napis->text()));
    for (const auto* inny : okno.findChildren<QAbstractButton*>()) zajete.insert(litera(inny->text()));
    for (const auto* skrot : okno.findChildren<QShortcut*>())
        if (const auto klawisz = skrot->key()[0];
            klawisz.keyboardModifiers() == Qt::AltModifier && klawisz.key() <= Qt::Key_Z)
            zajete.insert(QChar(klawisz.key()).toLower());
    const auto przyciski = okno.findChildren<QPushButton*>();
    oznacz(przyciski, Nieznane::BezLitery, zajete);
    for (const auto* przycisk : przyciski)
        if (przycisk->menu()) nadaj(*przycisk->menu());
}

} // namespace tornel::okna::mnemoniki
