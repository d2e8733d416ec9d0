// What the screens of contracts show, as tables: one row a kind, one row a field, one row an entry of the
// menu of prints.
#pragma once
#include "contracts/RodzajeUmow.h"
#include "okna/frmListaPol.h"
#include <span>

namespace tornel::contracts {

/// What the menu of prints does.
enum class DrukUmow { Umowa, Rachunek, Przelew, PrzelewyOkresu, PrzelewyPodatku, MultiCash, Zestawienie };

struct PozycjaDrukuUmow {
    DrukUmow co;
    QStringView napis;
};

struct EkranUmow {
    QStringView tabela; ///< of the kind
    QStringView nazwa, tytul;
    QStringView podpisPrzedmiotu;
    QStringView tytulDaty, pytanieDaty; ///< of `frmUZLData`
    QStringView pusta;                  ///< what the list says without a contract
    QStringView bezUrzedu;              ///< why the bill of a contract without tax office is empty
    std::span<const PozycjaDrukuUmow> druk;
    bool zakladki = true; ///< a second tab carries the contributions
};

[[nodiscard]] const EkranUmow& EkranRodzaju(const RodzajUmowy& rodzaj);

/// objectName of the field of a column.
[[nodiscard]] QString NazwaPolaUmowy(const PoleUmowy& pole);
/// The frames of the kind's screen; `urzedy` are the choices of the tax office.
[[nodiscard]] QList<GrupaPol> GrupyUmowy(const RodzajUmowy& rodzaj, const QList<Pozycja>& urzedy);

} // namespace tornel::contracts
