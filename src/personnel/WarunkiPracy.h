// An employment contract as its record says it: the terms of work, the kind, how it ends.
#pragma once
#include "common/Waluta.h"
#include "store/Recordset.h"
#include "store/Schemat.h"
#include <QDate>
#include <QList>
#include <QString>
#include <span>

namespace tornel::personnel {

/// `rodzaj` as the table stores it: the position in the list of kinds.
enum class RodzajUmowyOPrace { OkresProbny, CzasOkreslony, CzasNieokreslony, CzasPracy };
/// "na okres próbny" and so on, by position.
[[nodiscard]] std::span<const QStringView> RodzajeUmowOPrace();
/// The words of a stored kind, empty for one that the list lacks.
[[nodiscard]] QString NazwaRodzajuUmowy(qint64 rodzaj);

/// `sposob` as the table stores it: the position in the list of ways in which a contract ends.
enum class SposobRozwiazania {
    Trwa,
    WypowiedzenieFirmy,
    WypowiedzeniePracownika,
    Porozumienie,
    UplywCzasu,
    UkonczeniePracy,
    BezWypowiedzeniaFirma,
    BezWypowiedzeniaPracownik,
    Wygasniecie,
};
struct OpisSposobu {
    QStringView napis;    ///< on the screen
    QStringView zdanie;   ///< behind "Stosunek pracy ustał w wyniku:"
    QStringView podstawa; ///< the article of the Labour Code
};
/// By position; that of a stored number which the list lacks is the first.
[[nodiscard]] std::span<const OpisSposobu> SposobyRozwiazania();
[[nodiscard]] const OpisSposobu& OpisRozwiazania(SposobRozwiazania sposob);

/// What a contract and the personnel file both say of the work.
struct WarunkiPracy {
    QDate od, dokad; ///< of the contract; without an end for an unlimited one
    QString stanowisko, dzial;
    qint64 miejsce = 0; ///< workplace, M_PRACY
    qint64 etat = 0, etat2 = 0;
    Waluta placa = {};  ///< base salary, zł
    Waluta stawka = {}; ///< of an hour, zł
    Waluta premia = {}; ///< percent of the base salary

    friend bool operator==(const WarunkiPracy&, const WarunkiPracy&) = default;
};
/// From a record of `UMOP` and of `PRACPR`.
[[nodiscard]] WarunkiPracy WarunkiUmowy(const Wiersz& umowa);
[[nodiscard]] WarunkiPracy WarunkiKartoteki(const Wiersz& ustawienia);
/// Into the current record, in memory.
void WpiszWarunkiUmowy(Recordset& umowy, const WarunkiPracy& warunki);
void WpiszWarunkiKartoteki(Recordset& ustawienia, const WarunkiPracy& warunki);

/// "pełny etat", "1/2 etatu"; empty when it is not given.
[[nodiscard]] QString NapisEtatu(qint64 licznik, qint64 mianownik);

/// A row of `UMOP`: a contract, or a change of the terms of one.
struct UmowaOPrace {
    qint64 id = 0;
    QString numer;
    qint64 prcId = 0;
    QString nazwisko, imie;
    qint64 rodzaj = 0; ///< as stored
    QDate zawarta;
    WarunkiPracy warunki;
    qint64 zmienia = 0;        ///< the contract whose terms it changes, 0 for a contract
    bool wypowiadalna = false; ///< a fixed term that notice of two weeks may end
    QString inneWarunki;
    SposobRozwiazania sposob = SposobRozwiazania::Trwa; ///< of a contract
    /// Notice given of the contract, or of the terms that a change replaces; the last day of the employment,
    /// which the changes of a contract share with it in a list.
    QDate wypowiedziana, rozwiazana;
    QString przyczyna;       ///< of the notice
    bool zastapiona = false; ///< a later change has taken the place of its terms; known of a list of all

    [[nodiscard]] bool jestRodzaju(RodzajUmowyOPrace r) const { return rodzaj == static_cast<qint64>(r); }
    /// The last day as far as it is known: that of its termination, else of its term; invalid for none.
    [[nodiscard]] QDate koniec() const { return rozwiazana.isValid() ? rozwiazana : warunki.dokad; }
    /// "Bielak Jan".
    [[nodiscard]] QString osoba() const { return (nazwisko + QLatin1Char(' ') + imie).trimmed(); }
};
[[nodiscard]] UmowaOPrace UmowaZWiersza(const Wiersz& wiersz);

} // namespace tornel::personnel
