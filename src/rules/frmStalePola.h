// The constants as fields of their screen: names, kinds and frames, all made from the table of constants, and
// the values that the fields work on until they are stored.
#pragma once
#include "okna/Wiazanie.h"
#include "rules/TabelaStalych.h"
#include <array>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::rules {

namespace ekranStalych {

/// The constant by which the overtime boxes have their layout, and those that share the boxes.
inline constexpr int kSzczegRejNadg = 251;
inline constexpr int kRowNGRob = 254, kRowNGSob = 255, kRowNGNie = 256, kRowNGGr = 257;
inline constexpr std::size_t kRownanWRzedzie = 3;

/// One frame of a tab.
struct Ramka {
    QString tytul; ///< empty for constants that no frame joins
    QList<const StalaDef*> stale;
};

/// The frames of a tab in the order in which their first constants stand in the table. An array that no frame
/// holds has a frame of its own. Constant 257 stands in none: its values show in the boxes of 254 to 256.
[[nodiscard]] QList<Ramka> ramki(KartaStalych karta);

/// How many values the constant has, 1 if it is no array.
[[nodiscard]] std::size_t ileElementow(const StalaDef& stala);
[[nodiscard]] bool tablica(const StalaDef& stala);

/// "txtPlZas", "chkAktSystAk", "cboSposobPrzelSr"; of an array "txtNrNGS(0)", counted from 0.
[[nodiscard]] QString nazwaPola(const StalaDef& stala, std::size_t element = 0);

/// How the elements of an array are captioned.
enum class Podpisy {
    Kolejne, ///< each by its number or by its caption in the table
    Wspolny, ///< all in one line behind the constant's caption
};
/// The fields of the constant, one for each value.
[[nodiscard]] QList<Pole> pola(const StalaDef& stala, Podpisy podpisy, const QString& tytulRamki = {});

/// The tax offices, as "1. Nazwa", behind an empty choice for none. Reads `US`. Throws `BladBazy`.
[[nodiscard]] QList<Pozycja> urzedy(Sesja& sesja);

/// What the field's tool tip tells: the constant's number, and for 106 what its choices really compute.
[[nodiscard]] QString podpowiedz(const StalaDef& stala);

} // namespace ekranStalych

/// What the nine boxes of the overtime equations show.
enum class UkladNadgodzin { WgDni, WgGrup };

/// The constants as they are being edited. Nothing reaches the program or the database from here.
class ZrodloStalych final : public ZrodloPol {
public:
    explicit ZrodloStalych(const Stale& stale);

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override;
    void zapisz(const Pole& pole, const Wartosc& wartosc) override;
    [[nodiscard]] bool czekaNaZapis(const Pole& pole) const override;
    /// The values so far are stored.
    void przyjmijZapis() { zapisane_ = stale_; }

    /// The values so far.
    [[nodiscard]] const Stale& stale() const { return stale_; }
    /// Lets the overtime boxes show the layout that constant 251 asks for; the equations of the other one
    /// stay. The fields are to be collected before and shown again after it.
    void przyjmijUklad() { uklad_ = stale_.SzczegRejNadg ? UkladNadgodzin::WgDni : UkladNadgodzin::WgGrup; }

private:
    [[nodiscard]] Wartosc czytajZ(const Stale& stale, const Pole& pole) const;

    Stale stale_, zapisane_;
    UkladNadgodzin uklad_ = UkladNadgodzin::WgGrup;
};

} // namespace tornel::rules
