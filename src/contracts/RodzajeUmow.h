// The kinds of civil-law contracts as data: tables, fields, where a typed field starts the calculation, what
// a new contract takes from the personnel file, texts.
#pragma once
#include "common/Przestrzenie.h"
#include "store/Tabela.h"
#include <QString>
#include <QStringView>
#include <span>

namespace tornel::contracts {

/// The steps of the calculation; each goes on to the next.
enum class KrokUmowy {
    Skladki,  ///< contributions from the gross amount
    Podstawa, ///< health insurance and costs from the gross amount less the contractor's contributions
    Podatek,  ///< advance from the income, less the health insurance
    Netto,    ///< what is left; the transfer begins at 0 again
    Zaden     ///< the field leads nowhere
};

/// How a field reads what is typed.
enum class RodzajPolaUmowy { Kwota, Przelew, Tekst, Data, Urzad, Paczka, Wyslane };

struct PoleUmowy {
    std::string_view kolumna; ///< in any of the tables that has it
    RodzajPolaUmowy rodzaj;
    KrokUmowy start = KrokUmowy::Zaden;
};

/// A column of a new contract that stands on the person's record.
struct ZKartoteki {
    std::string_view kolumna;
    store::Kolumna zrodlo; ///< of `PRACPR`
};

struct RodzajUmowy {
    const store::TabelaDef* tabela;
    store::Kolumna id, numer;
    int trybWyboru; ///< of the person picker
    std::span<const ZKartoteki> zKartoteki;
    QStringView kolumnaOsoby;            ///< heading of the list's second column
    QStringView nowa, zmiana, usuniecie; ///< actions in words
    QStringView pytanieUsuniecia;
    bool wybierzUrzad = false; ///< the office can be chosen, and follows the list of offices at each saving

    /// The column of this name (in any case), if the table has it; without a table otherwise.
    [[nodiscard]] store::Kolumna kolumna(std::string_view nazwa) const;
};

/// UZL, UOD, HON.
[[nodiscard]] std::span<const RodzajUmowy> RodzajeUmow();
/// By the table's name, in any case; none for another.
[[nodiscard]] const RodzajUmowy* ZnajdzRodzajUmowy(const QString& tabela);
/// The field with this column (in any case), if this kind has it; none otherwise.
[[nodiscard]] const PoleUmowy* ZnajdzPoleUmowy(const RodzajUmowy& rodzaj, const QString& kolumna);
/// The fields of all kinds; a kind has those whose columns its table has.
[[nodiscard]] std::span<const PoleUmowy> PolaUmow();

} // namespace tornel::contracts
