// Who may start the program: the users' table at start-up and the one login of a session.
#pragma once
#include "rules/Otoczenie.h"
#include <QString>

namespace tornel::start {

/// Opens the users' table and, if it has no row, adds the administrator "Admin" with an empty password. Reads
/// and writes `UZYTKOWNICY`. Throws `BladBazy`.
void InitUzytkownicy(Sesja& sesja);

/// Whether the user `nazwa` (blanks around it do not count) exists and has the password `haslo`. Blanks
/// around the typed and the stored password do not count. Sets the session's user: the name, the password as
/// typed, and the type, which is 0 for an unknown name. Reads `UZYTKOWNICY`, which
/// must be open.
[[nodiscard]] bool SprawdzLogin(Sesja& sesja, const QString& nazwa, const QString& haslo);

enum class ZmianaHasla { Zmienione, ZleStare, RozneNowe, BrakUzytkownika };

/// Gives the session's user the password `nowe`, in the table and in the session, and says how it went in a
/// message. Blanks around passwords do not count, as at the login. Reads and writes `UZYTKOWNICY`. Throws
/// `BladBazy`; the password then stays as it was.
[[nodiscard]] ZmianaHasla SprHaslo(Otoczenie& otoczenie, const QString& stare, const QString& nowe,
                                   const QString& potwierdzone);

} // namespace tornel::start
