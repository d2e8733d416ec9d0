// modStruktB: the structure of a database as two lists, tables and columns, read from the file or from
// `Tabele.rec` and `Pola.rec`.
#pragma once
#include "store/Polaczenie.h"
#include <QByteArray>
#include <QList>
#include <QString>

namespace tornel::store {

/// A row of `Tabele.rec`.
struct TabelaStruktury {
    int id = 0; ///< running number from 1
    QString nazwa;
};

/// A row of `Pola.rec`.
struct PoleStruktury {
    int id = 0; ///< of its table
    QString pole;
    QString typ; ///< word: CHAR, TEXT, MEMO, BYTE, SHORT, INTEGER, SINGLE, DOUBLE, DATE, CURRENCY; or empty
    int rozmiar = 0; ///< characters of CHAR and TEXT, bytes of the others, 0 of MEMO
};

struct StrukturaBazy {
    QList<TabelaStruktury> tabele;
    QList<PoleStruktury> pola; ///< in table order and within it in column order

    [[nodiscard]] QList<PoleStruktury> polaTabeli(int id) const;
};

/// Whether the name is that of a payroll month's table: six digits at its end. Such tables are left alone.
[[nodiscard]] bool tabelaMiesiaca(const QString& nazwa);

/// The structure of the open file without its month tables, by the names of the tables. Throws `BladBazy`.
[[nodiscard]] StrukturaBazy PobierzStrukture(Polaczenie& polaczenie);

/// The SQL type of a word and size, empty for an unknown word.
[[nodiscard]] QString TypSQL(const QString& slowo, int rozmiar);

// The two files as CSV: `ID;NAZWA` and `ID;POLE;TYP;ROZMIAR`.

[[nodiscard]] QByteArray TabeleDoPliku(const StrukturaBazy& struktura);
[[nodiscard]] QByteArray PolaDoPliku(const StrukturaBazy& struktura);
/// Each throws `Blad` that names the line.
[[nodiscard]] QList<TabelaStruktury> TabeleZPliku(const QByteArray& csv);
[[nodiscard]] QList<PoleStruktury> PolaZPliku(const QByteArray& csv);

} // namespace tornel::store
