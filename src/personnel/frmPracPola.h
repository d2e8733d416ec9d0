// The fields of the personnel file as tables: tab, group, caption, column, kind and choices. A control is
// named by its kind and column, as txtNaz or chkZwoln.
#pragma once
#include "okna/Pole.h"
#include <QList>
#include <QString>

namespace tornel::personnel {

struct GrupaKartoteki {
    QString tytul;
    QList<Pole> pola;
    int kolumn = 1; ///< fields side by side
};

/// Groups one below the other.
using KolumnaKartoteki = QList<GrupaKartoteki>;

struct ZakladkaKartoteki {
    QString tytul;
    QList<KolumnaKartoteki> kolumny;
};

namespace ekranKartoteki {

enum Zakladka {
    Ogolne,
    Adresy,
    DanePracownicze,
    UrzadSkarbowy,
    AktywneSkladniki,
    Skladniki,
    Inne,
    UmowyZlecenia,
    Zus1,
    Zus2,
    Zus3,
};

/// The eleven tabs in their order.
[[nodiscard]] const QList<ZakladkaKartoteki>& zakladki();
/// The free note at the side of all tabs.
[[nodiscard]] Pole notatka();

/// "D1" to "D30" and "P1" to "P15": bit `Pole::klucz` - 1 of the column.
[[nodiscard]] QString poleD(int n);
[[nodiscard]] QString poleP(int n);
/// The amounts of the components.
[[nodiscard]] QString kwotaDodatnia(int n);
[[nodiscard]] QString kwotaUjemna(int n);

/// The groups that the address copy is proposed for.
inline constexpr QStringView kAdresZamieszkania = u"ADRES ZAMIESZKANIA";
inline constexpr QStringView kAdresKorespondencji = u"ADRES DO KORESPONDENCJI";

} // namespace ekranKartoteki

} // namespace tornel::personnel
