#include "start/Uzytkownicy.h"
#include "common/Rozmowa.h"
#include "store/Sesja.h"

namespace tornel::start {

namespace {

constexpr Kolumna kNazwa = schemat::UZYTKOWNICY("Nazwa");
constexpr Kolumna kHaslo = schemat::UZYTKOWNICY("haslo");
constexpr Kolumna kTyp = schemat::UZYTKOWNICY("Typ");

} // namespace

void InitUzytkownicy(Sesja& sesja) {
    Recordset& rs = sesja.rsUZYTKOWNICY;
    if (!rs.otwarty()) rs.Open(sesja.cnPlace);
    if (rs.RecordCount() > 0) return;
    rs.AddNew();
    rs.ustaw(kNazwa, QStringLiteral("Admin"));
    rs.ustaw(kTyp, 0);
    rs.ustaw(kHaslo, QString());
    rs.UpdateBatch(u"Pierwszy użytkownik");
}

bool SprawdzLogin(Sesja& sesja, const QString& nazwa, const QString& haslo) {
    Recordset& rs = sesja.rsUZYTKOWNICY;
    sesja.uzytkownik = {.nazwa = nazwa.trimmed(), .haslo = haslo, .typ = 0};
    if (!rs.Find({kNazwa, Kryterium::Operator::Rowne, sesja.uzytkownik.nazwa})) return false;
    sesja.uzytkownik.typ = static_cast<int>(rs.liczba(kTyp));
    return rs.tekst(kHaslo).trimmed() == haslo.trimmed();
}

ZmianaHasla SprHaslo(Otoczenie& otoczenie, const QString& stare, const QString& nowe,
                     const QString& potwierdzone) {
    Sesja& sesja = otoczenie.sesja;
    const auto odmow = [&](const QString& powod, ZmianaHasla wynik) {
        otoczenie.rozmowa.komunikat(powod, Styl::Wykrzyknik);
        return wynik;
    };
    if (stare.trimmed() != sesja.uzytkownik.haslo.trimmed())
        return odmow(QStringLiteral("Stare hasło jest nieprawidłowe! Nie można zmienić hasła."),
                     ZmianaHasla::ZleStare);
    if (nowe.trimmed() != potwierdzone.trimmed())
        return odmow(QStringLiteral("Nowe hasło i hasło potwierdzone są różne! Nie można zmienić hasła."),
                     ZmianaHasla::RozneNowe);
    Recordset& rs = sesja.rsUZYTKOWNICY;
    if (!rs.Find({kNazwa, Kryterium::Operator::Rowne, sesja.uzytkownik.nazwa}))
        return odmow(QStringLiteral("Nie można odnaleźć danych o użytkowniku! Hasło nie zostanie zmienione"),
                     ZmianaHasla::BrakUzytkownika);
    rs.ustaw(kHaslo, nowe.trimmed());
    try {
        rs.UpdateBatch(u"Zmiana hasła");
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
    sesja.uzytkownik.haslo = rs.tekst(kHaslo);
    otoczenie.rozmowa.komunikat(QStringLiteral("Hasło zostało zmienione."), Styl::Informacja);
    return ZmianaHasla::Zmienione;
}

} // namespace tornel::start
