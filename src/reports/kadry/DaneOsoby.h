// What the personnel papers say of an employee, and the rows of papers that are made of one or more pages for
// each.
#pragma once
#include "common/Waluta.h"
#include "druk/Wiersze.h"
#include "rules/Otoczenie.h"
#include <QDate>
#include <QList>
#include <QString>
#include <utility>
#include <vector>

namespace tornel::reports {

struct DaneOsoby {
    qint64 prcId = 0;
    QString nazwisko, imie, imie2;
    bool kobieta = false;
    QDate dataUrodzenia;
    QString miejsceUrodzenia, pesel, nip, dowod;
    QString rodzice; ///< first names, "Stanisław, Maria"
    QString adres;   ///< of residence, that of registration without it
    QString dzial, stanowisko;
    QString etat; ///< "1/2", empty when it is not given
    QDate zatrudniony, zwolniony, umowaOd, umowaDo;
    bool odszedl = false;
    qint64 usId = 0;
    qint64 urlopZalegly = 0, urlopNowy = 0; ///< days
    /// Opening balances of the year, zł.
    Waluta przychodBO, kosztyBO, skladkiBO, zdrowotneNalezneBO, zdrowotneOdliczoneBO, podatekBO;

    /// "Adamska Barbara Maria".
    [[nodiscard]] QString pelneNazwisko() const;
    /// "od 01-02-2001 do 31-01-2002", as far as known.
    [[nodiscard]] QString okresZatrudnienia() const;
};

/// From the handles of the personnel file, in the order of the numbers. Throws `Blad` for somebody who is not
/// in it.
[[nodiscard]] QList<DaneOsoby> DaneOsob(Otoczenie& otoczenie, const QList<qint64>& numery);

/// The first fields of every row: whose it is. Those of the paper itself begin at `kPolOsoby`.
enum PoleOsoby : int {
    OsNumer,
    OsNazwisko,
    OsPraca,     ///< department, post, working time, employed from and to, in one line
    OsTozsamosc, ///< PESEL, NIP, address, in one line
    kPolOsoby
};

/// Rows person by person, by which papers are grouped.
class WierszeOsob : public WierszeDruku {
public:
    explicit WierszeOsob(QList<DaneOsoby> osoby) : osoby_(std::move(osoby)) {}
    [[nodiscard]] int ile() const override { return static_cast<int>(wiersze_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override;

protected:
    /// Adds so many rows of the person at `osoba`.
    void dopisz(int osoba, int ile) {
        for (int i = 0; i < ile; ++i) wiersze_.emplace_back(osoba, i);
    }
    [[nodiscard]] const QList<DaneOsoby>& osoby() const { return osoby_; }
    /// A field of the paper itself, in row `nr` of the person, from 0.
    [[nodiscard]] virtual Wartosc poleOsoby(int osoba, int nr, int pole) const = 0;

private:
    QList<DaneOsoby> osoby_;
    std::vector<std::pair<int, int>> wiersze_;
};

} // namespace tornel::reports
