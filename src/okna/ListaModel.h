// Plain rows of text for the lists of all screens.
#pragma once
#include "common/Przestrzenie.h"
#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QStringList>

namespace tornel::okna {

struct KolumnaListy {
    QString naglowek;
    Qt::Alignment wyrownanie = Qt::AlignLeft; ///< numbers and money stand right
};

struct WierszListy {
    qint64 id = 0; ///< what the screen finds the row by; unique within a list
    QStringList teksty;
    QString uwaga = {}; ///< sets the row apart (dimmed, slanted) and stands as its tool tip; empty for none
};

class ListaModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ListaModel(QList<KolumnaListy> kolumny, QObject* rodzic = nullptr);

    /// Replaces all rows at once.
    void ustaw(QList<WierszListy> wiersze);
    /// New texts and note for the row `id`; nothing happens if there is none.
    void zmien(qint64 id, const QStringList& teksty, const QString& uwaga = {});
    void ustawNaglowek(int kolumna, const QString& naglowek);

    /// The id of a row, -1 outside the list.
    [[nodiscard]] qint64 id(int wiersz) const;
    /// The row of an id, -1 if there is none.
    [[nodiscard]] int wiersz(qint64 id) const { return poId_.value(id, -1); }

    [[nodiscard]] int rowCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indeks, int rola) const override;
    [[nodiscard]] QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;

private:
    QList<KolumnaListy> kolumny_;
    QList<WierszListy> wiersze_;
    QHash<qint64, int> poId_;
};

} // namespace tornel::okna
