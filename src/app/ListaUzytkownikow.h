// The users of the program as an administrator keeps them.
#pragma once
#include "rules/Otoczenie.h"
#include <optional>
#include <QString>
#include <QStringList>

namespace tornel::app {

/// One user as the list's fields show him.
struct DaneUzytkownika {
    QString nazwa = {};
    QString haslo = {}; ///< in clear: deliberate
    bool kadry = false;
    bool place = false;
    bool administrator = false; ///< type 0; the rights are off then
};

class ListaUzytkownikow {
public:
    /// The longest name and password.
    static constexpr int kDlugosc = 30;

    /// Opens the users' table if it is closed. Throws `BladBazy`.
    explicit ListaUzytkownikow(Otoczenie& otoczenie);

    /// The names in table order. Reads `UZYTKOWNICY`.
    [[nodiscard]] QStringList Wczytaj() const;
    /// The user `nazwa`; nothing if there is none.
    [[nodiscard]] std::optional<DaneUzytkownika> Wypisz(const QString& nazwa) const;

    /// Stores the user `nazwa` anew; blanks around name and password are taken off, since no login could give
    /// them. False, after a message and with nothing stored, for an administrator, an empty name or one that
    /// another user has. A user left with no right becomes an administrator: deliberate. Throws `Blad` for an
    /// unknown name, `BladBazy`.
    bool Wpisz(const QString& nazwa, const DaneUzytkownika& dane);
    /// Asks and deletes. False on No, or after a message for an administrator. Throws as `Wpisz`.
    bool Usun(const QString& nazwa);
    /// Adds a user with both rights. False, after a message, for differing passwords, an empty name or one
    /// that is taken. Throws `BladBazy`.
    bool Nowy(const QString& nazwa, const QString& haslo, const QString& powtorzenie);

private:
    void wymagaj(const QString& nazwa) const;
    [[nodiscard]] bool nazwaWolna(const QString& nazwa) const;
    [[nodiscard]] bool odmow(const QString& powod) const;
    void zapisz();

    Otoczenie& o_;
};

} // namespace tornel::app
