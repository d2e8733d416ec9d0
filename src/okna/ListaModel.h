// Plain rows of text for the lists of all screens: sorted by any column, filtered, found by their ids.
#pragma once
#include "common/Przestrzenie.h"
#include <functional>
#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QStringList>
#include <vector>

namespace tornel::okna {

/// By what a column's texts stand in order.
enum class Porzadek {
    WgWyrownania, ///< `Liczba` for a column that stands right, `Tekst` for any other
    Tekst,        ///< by the Polish collation
    Liczba,       ///< numbers, money and hours
    Data,         ///< dd-mm-yyyy with any separator, mm.yyyy, or the name of a month
};

struct KolumnaListy {
    QString naglowek;
    Qt::Alignment wyrownanie = Qt::AlignLeft; ///< numbers and money stand right
    Porzadek porzadek = Porzadek::WgWyrownania;
};

/// How a row with a note stands out.
enum class Waga {
    Uboczna, ///< dimmed and slanted
    Wazna,   ///< with a sign before its first text
};

struct WierszListy {
    qint64 id = 0; ///< what the screen finds the row by; unique within a list
    QStringList teksty;
    QString uwaga = {}; ///< sets the row apart and stands as its tool tip; empty for none
    Waga waga = Waga::Uboczna;
};

/// The rows as the screen gave them, seen through an order and a filter. Numbers of rows are those seen.
class ListaModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using Warunek = std::function<bool(const WierszListy& wiersz)>;

    explicit ListaModel(QList<KolumnaListy> kolumny, QObject* rodzic = nullptr);

    /// Replaces all rows at once; order and filter stay in force.
    void ustaw(QList<WierszListy> wiersze);
    /// New texts and note for the row `id`; nothing happens if there is none. The row stays where it is.
    void zmien(qint64 id, const QStringList& teksty, const QString& uwaga = {}, Waga waga = Waga::Uboczna);
    void ustawNaglowek(int kolumna, const QString& naglowek);

    /// How many rows a filter would leave.
    [[nodiscard]] int ilePasuje(const Warunek& warunek) const;
    /// Shows only the rows that fit; all of them for an empty condition.
    void filtruj(Warunek warunek);
    [[nodiscard]] bool filtrowana() const { return static_cast<bool>(warunek_); }
    /// All rows in the order in which the screen gave them.
    [[nodiscard]] const QList<WierszListy>& wszystkie() const { return wiersze_; }

    /// The id of the last of them, -1 for an empty list.
    [[nodiscard]] qint64 ostatni() const { return wiersze_.isEmpty() ? -1 : wiersze_.last().id; }

    /// The id of a row, -1 outside the list.
    [[nodiscard]] qint64 id(int wiersz) const;
    /// The row of an id, -1 if there is none or the filter hides it.
    [[nodiscard]] int wiersz(qint64 id) const;
    /// The row as the screen gave it.
    [[nodiscard]] const WierszListy& widoczny(int wiersz) const {
        return wiersze_.at(widoczne_[static_cast<std::size_t>(wiersz)]);
    }
    [[nodiscard]] bool zawiera(qint64 id) const { return poId_.contains(id); }

    [[nodiscard]] int rowCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indeks, int rola) const override;
    [[nodiscard]] QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;
    /// By a column, rows that are alike as the screen gave them; -1 for the screen's own order.
    void sort(int kolumna, Qt::SortOrder kierunek = Qt::AscendingOrder) override;

private:
    /// Which rows are seen, in the order worked out.
    void uloz();
    [[nodiscard]] std::vector<int> posortowane() const;

    QList<KolumnaListy> kolumny_;
    QList<WierszListy> wiersze_;
    QHash<qint64, int> poId_; ///< place in `wiersze_`
    Warunek warunek_;
    int kolumnaSortowania_ = -1;
    Qt::SortOrder kierunek_ = Qt::AscendingOrder;
    std::vector<int> kolejnosc_; ///< all places of `wiersze_` in order, so that filtering sorts nothing
    std::vector<int> widoczne_;  ///< by the row seen, its place in `wiersze_`
    std::vector<int> miejsca_;   ///< the other way round, -1 for a hidden row
};

} // namespace tornel::okna
