// What the grid of one person's overtime shows: a row a day, or a row a time group where hours are not told
// by days.
#pragma once
#include "payroll/nadgodziny/ListaNadgodzin.h"
#include <exception>
#include <QAbstractTableModel>
#include <utility>

namespace tornel::payroll {

/// The rows of the list's person in work. Typed values go to the list at once; what it refuses stays as it
/// was.
class ModelNadgodzin : public QAbstractTableModel {
    Q_OBJECT
public:
    enum class Rodzaj { Data, Dzien, Grupa, Godziny, Rownanie, Stawka, Kwota, Uwagi };
    /// What a cell shows: which row of the person, and which group, 0 for all of them.
    struct Komorka {
        Rodzaj rodzaj;
        int wiersz;
        int grupa;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows the person in work of `lista`, which outlives the model's use of it; nobody for null.
    void ustaw(ListaNadgodzin* lista);
    /// Whether rows are days.
    [[nodiscard]] bool szczegolowa() const { return szczegolowa_; }
    [[nodiscard]] Komorka komorka(int wiersz, int kolumna) const;
    /// The first column that hours are typed into.
    [[nodiscard]] int kolumnaGodzin() const;
    /// Whether cells of this kind hold numbers, which stand at the right.
    [[nodiscard]] static bool liczba(Rodzaj rodzaj);
    /// The failure that the last storing met, if any; it is kept no longer.
    [[nodiscard]] std::exception_ptr zabierzBlad() { return std::exchange(blad_, nullptr); }

    [[nodiscard]] int rowCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indeks, int rola) const override;
    [[nodiscard]] QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& indeks) const override;
    /// Stores what was typed. A failure is kept for `zabierzBlad`: an exception would leave the view in the
    /// middle of its work.
    bool setData(const QModelIndex& indeks, const QVariant& wartosc, int rola) override;
    /// Carries the rate of this day to the days behind it.
    void przeniesStawke(int wiersz);

signals:
    /// Hours, a rate or a remark were stored, and with them the sums.
    void zmieniono();

private:
    [[nodiscard]] Rodzaj rodzajKolumny(int kolumna) const;
    [[nodiscard]] QString tekst(const Komorka& k) const;
    [[nodiscard]] QString doEdycji(const Komorka& k) const;
    [[nodiscard]] QString podpowiedz(const Komorka& k) const;
    [[nodiscard]] QVariant barwa(const Komorka& k, int rola) const;
    void odczytaj();
    [[nodiscard]] bool wpisz(const Komorka& k, const QString& tekst);

    ListaNadgodzin* lista_ = nullptr;
    QList<WierszNadgodzin> wiersze_;
    bool szczegolowa_ = false;
    std::exception_ptr blad_;
};

} // namespace tornel::payroll
