#include "app/ListaUzytkownikow.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "store/Sesja.h"

namespace tornel::app {

namespace {

constexpr Kolumna kNazwa = schemat::UZYTKOWNICY("Nazwa");
constexpr Kolumna kHaslo = schemat::UZYTKOWNICY("haslo");
constexpr Kolumna kTyp = schemat::UZYTKOWNICY("Typ");
static_assert(kNazwa.def().rozmiar == ListaUzytkownikow::kDlugosc &&
              kHaslo.def().rozmiar == ListaUzytkownikow::kDlugosc);

constexpr qint64 kAdministrator = 0;
constexpr qint64 kKadry = 1;
constexpr qint64 kPlace = 2;

bool znajdz(Recordset& rs, const QString& nazwa) {
    return rs.Find({kNazwa, Kryterium::Operator::Rowne, nazwa});
}

} // namespace

ListaUzytkownikow::ListaUzytkownikow(Otoczenie& otoczenie) : o_(otoczenie) {
    if (!o_.sesja.rsUZYTKOWNICY.otwarty()) o_.sesja.rsUZYTKOWNICY.Open(o_.sesja.cnPlace);
}

QStringList ListaUzytkownikow::Wczytaj() const {
    QStringList nazwy;
    Recordset& rs = o_.sesja.rsUZYTKOWNICY;
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) nazwy.append(rs.tekst(kNazwa));
    return nazwy;
}

std::optional<DaneUzytkownika> ListaUzytkownikow::Wypisz(const QString& nazwa) const {
    Recordset& rs = o_.sesja.rsUZYTKOWNICY;
    if (!znajdz(rs, nazwa)) return std::nullopt;
    const qint64 typ = rs.liczba(kTyp);
    return DaneUzytkownika{.nazwa = rs.tekst(kNazwa),
                           .haslo = rs.tekst(kHaslo),
                           .kadry = (typ & kKadry) != 0,
                           .place = (typ & kPlace) != 0,
                           .administrator = typ == kAdministrator};
}

void ListaUzytkownikow::wymagaj(const QString& nazwa) const {
    if (!znajdz(o_.sesja.rsUZYTKOWNICY, nazwa))
        throw Blad(QStringLiteral("Na liście nie ma użytkownika %1.").arg(nazwa));
}

bool ListaUzytkownikow::odmow(const QString& powod) const {
    o_.rozmowa.komunikat(powod, Styl::Wykrzyknik);
    return false;
}

bool ListaUzytkownikow::nazwaWolna(const QString& nazwa) const {
    if (nazwa.isEmpty())
        return odmow(QStringLiteral("Nazwa użytkownika jest pusta. Musisz podać nazwę użytkownika"));
    if (znajdz(o_.sesja.rsUZYTKOWNICY, nazwa))
        return odmow(QStringLiteral("Użytkownik ") + nazwa +
                     QStringLiteral(" jest już zarejestrowany w programie. Podaj inną nazę dla nowego "
                                    "użutkownika."));
    return true;
}

void ListaUzytkownikow::zapisz() {
    try {
        o_.sesja.rsUZYTKOWNICY.UpdateBatch(u"Zmiana listy użytkowników");
    } catch (...) {
        o_.sesja.rsUZYTKOWNICY.CancelBatch();
        throw;
    }
}

bool ListaUzytkownikow::Wpisz(const QString& nazwa, const DaneUzytkownika& dane) {
    Recordset& rs = o_.sesja.rsUZYTKOWNICY;
    wymagaj(nazwa);
    if (rs.liczba(kTyp) == kAdministrator)
        return odmow(QStringLiteral("Administrator nie może być zmieniony!"));
    const QString nowa = dane.nazwa.trimmed();
    if (nowa != nazwa && !nazwaWolna(nowa)) return false;
    wymagaj(nazwa);
    rs.ustaw(kNazwa, nowa);
    rs.ustaw(kHaslo, dane.haslo.trimmed());
    // No right gives type 0, which makes the user an administrator: deliberate.
    rs.ustaw(kTyp, (dane.kadry ? kKadry : 0) + (dane.place ? kPlace : 0));
    zapisz();
    return true;
}

bool ListaUzytkownikow::Usun(const QString& nazwa) {
    Recordset& rs = o_.sesja.rsUZYTKOWNICY;
    wymagaj(nazwa);
    if (rs.liczba(kTyp) == kAdministrator)
        return odmow(QStringLiteral("Użytkownik ") + nazwa +
                     QStringLiteral(" nie może zostać usunięty z listy."));
    if (!o_.rozmowa.pytanieUsuwajace(
            QStringLiteral("Usunięty użytkownik nie będzie mógł się więcej zalogować do programu. Usunąć ?")))
        return false;
    wymagaj(nazwa);
    rs.Delete();
    zapisz();
    return true;
}

bool ListaUzytkownikow::Nowy(const QString& nazwa, const QString& haslo, const QString& powtorzenie) {
    if (haslo.trimmed() != powtorzenie.trimmed())
        return odmow(QStringLiteral("Nowe hasło oraz hasło powtórzone są różne. Wpisz hasło jeszcze raz."));
    const QString nowa = nazwa.trimmed();
    if (!nazwaWolna(nowa)) return false;
    Recordset& rs = o_.sesja.rsUZYTKOWNICY;
    rs.AddNew();
    rs.ustaw(kNazwa, nowa);
    rs.ustaw(kTyp, kKadry + kPlace);
    rs.ustaw(kHaslo, haslo.trimmed());
    zapisz();
    return true;
}

} // namespace tornel::app
