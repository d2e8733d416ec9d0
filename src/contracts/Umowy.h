// The contracts of one kind: list, taking one up, typing its fields, saving, adding, deleting.
#pragma once
#include "contracts/RachunekUmowy.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::contracts {

/// A line of the list.
struct LiniaUmowy {
    qint64 id = 0;
    QDate zawarta;
    QString nazwisko; ///< in upper case
};

class Umowy {
public:
    /// Opens the table on the session's handle. Throws `BladBazy`, `UszkodzonaWartosc`.
    Umowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj);
    /// By date of conclusion, number and key.
    [[nodiscard]] QList<LiniaUmowy> Wczytaj() const;

    /// Takes the contract up; its amounts and rates are those that its fields show. False if there is none.
    bool Wypisz(qint64 id);

    /// What a field said of the text that was typed.
    enum class Zrozumienie { Pelne, Zadne };
    /// A field is left with this text: an amount that is none becomes 0, a date that is none becomes empty, a
    /// transfer above the net amount becomes 0; then the calculation runs from the field's step. In memory.
    /// Throws `Blad` for a text longer than its column or an office that is not on the list, `Przepelnienie`
    /// for amounts beyond the range; the contract then stays as it was.
    Zrozumienie Opusc(const PoleUmowy& pole, const QString& tekst);
    /// Stores the contract taken up, with the amounts in words and the office by the text of its entry. One
    /// action. Throws `BladBazy`, `Konflikt`.
    void Wpisz();

    /// Adds a contract of this person with the rates of the personnel file and saves it; gives its key.
    /// Throws `Blad` for a person whom the picker of this kind would not list.
    qint64 Nowy(qint64 prcId, QDate data);
    /// Asks and deletes the contract taken up. False on No.
    bool Usun();
    /// The smallest free key from 1.
    [[nodiscard]] qint64 WolnyNumer() const;

private:
    void wymagajWybranej() const;
    void wpiszTekst(Kolumna kolumna, const QString& tekst);
    void wpiszUrzad();
    Zrozumienie wpiszKwote(const PoleUmowy& pole, const QString& tekst);

    Otoczenie& o_;
    const RodzajUmowy& rodzaj_;
    Recordset& rs_;
    std::optional<qint64> biezaca_;
    RachunekUmowy rachunek_;
};

} // namespace tornel::contracts
