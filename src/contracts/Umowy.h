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
class Wiersz;
} // namespace tornel::store

namespace tornel::contracts {

/// A line of the list.
struct LiniaUmowy {
    qint64 id = 0;
    QDate zawarta;
    QString nazwisko; ///< in upper case
    qint64 prcId = 0;
    QString numer, imie;
    Waluta brutto, netto; ///< zł
    QDate wyplacona;      ///< invalid while it is not paid
    bool wyslana = false; ///< stands in a file for the bank
};

/// Which lines are wanted; what is not given may be anything.
struct FiltrUmow {
    std::optional<int> rok = {}; ///< of conclusion
    std::optional<qint64> prcId = {};
    bool niewyplacone = false; ///< only those without a day of payment

    [[nodiscard]] bool pasuje(const LiniaUmowy& linia) const;
};

/// Of lines, zł.
struct SumaUmow {
    qsizetype ile = 0;
    Waluta brutto = {}, netto = {};

    void dodaj(const LiniaUmowy& linia);
};

class Umowy {
public:
    /// Opens the table on the session's handle. Throws `BladBazy`, `UszkodzonaWartosc`.
    Umowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj);
    /// By date of conclusion, number and key.
    [[nodiscard]] QList<LiniaUmowy> Wczytaj() const;

    /// The line of one contract as it stands in the handle; nothing for an unknown one.
    [[nodiscard]] std::optional<LiniaUmowy> linia(qint64 id) const;

    /// Reads the table again, as after others have written it; nothing is taken up.
    void Odswiez();

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

    /// The amounts and rates of the contract taken up.
    [[nodiscard]] const RachunekUmowy& rachunek() const { return rachunek_; }
    /// Sets one of them as it stands, with no calculation. In memory.
    void ustawKwote(const PoleUmowy& pole, Waluta kwota);
    /// Drops what was set and not stored.
    void Porzuc();
    /// The handle that stands on the contract taken up.
    [[nodiscard]] Recordset& tabela() { return rs_; }

    /// Adds a contract of this person with the rates of the personnel file and saves it; gives its key.
    /// Throws `Blad` for a person whom the picker of this kind would not list.
    qint64 Nowy(qint64 prcId, QDate data);
    /// Adds a contract with all that contract `id` has, but its number, its days and its marks of bank files;
    /// gives its key. Throws as `Nowy`, and `Blad` for an unknown `id`.
    qint64 Kopia(qint64 id, QDate data);
    /// Asks and deletes the contract taken up. False on No.
    bool Usun();
    /// The smallest free key from 1.
    [[nodiscard]] qint64 WolnyNumer() const;

private:
    /// What the list shows, found by name once.
    struct KolumnyListy {
        Kolumna zawarta, naz, osoba, imie, brutto, netto, wyplacona, wyslana;
    };
    [[nodiscard]] LiniaUmowy linia(const Wiersz& wiersz) const;
    void wymagajWybranej() const;
    void wymagajOsoby(qint64 prcId, QDate data) const;
    /// A new row with the smallest free key.
    qint64 dodaj(QDate data);
    void zapiszNowa();
    void wpiszTekst(Kolumna kolumna, const QString& tekst);
    void wpiszUrzad();
    Zrozumienie wpiszKwote(const PoleUmowy& pole, const QString& tekst);

    Otoczenie& o_;
    const RodzajUmowy& rodzaj_;
    Recordset& rs_;
    KolumnyListy kolumny_;
    std::optional<qint64> biezaca_;
    RachunekUmowy rachunek_;
};

} // namespace tornel::contracts
