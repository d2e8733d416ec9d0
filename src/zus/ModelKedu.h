// A collection as a tree for the eye: documents, their blocks, the fields of a block. Fields are worked out
// when somebody looks at them.
#pragma once
#include "zus/OdczytKedu.h"
#include <memory>
#include <optional>
#include <QAbstractItemModel>
#include <QHash>

namespace tornel::zus {

class ModelKedu : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Kolumna { Nazwa, Wartosc, Kolumn };

    explicit ModelKedu(QObject* rodzic = nullptr) : QAbstractItemModel(rodzic) {}

    /// Takes the collection over; null for none.
    void ustaw(std::shared_ptr<const OdczytKedu> odczyt);
    [[nodiscard]] const OdczytKedu* odczyt() const { return odczyt_.get(); }

    /// The next place behind `od`, around to it, whose caption or value holds the text, whatever its case;
    /// an invalid index for none.
    [[nodiscard]] QModelIndex szukaj(const QString& tekst, const QModelIndex& od) const;

    [[nodiscard]] QModelIndex index(int wiersz, int kolumna, const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& indeks) const override;
    using QObject::parent;
    [[nodiscard]] int rowCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& rodzic = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indeks, int rola) const override;
    [[nodiscard]] QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;

private:
    /// Which document and block an index belongs to; -1 where it is above them.
    struct Miejsce {
        int dokument = -1, blok = -1;
    };
    [[nodiscard]] static Miejsce nad(const QModelIndex& indeks);
    [[nodiscard]] const QList<PoleOdczytane>& pola(int dokument, int blok) const;
    [[nodiscard]] QString tekst(const QModelIndex& indeks) const;
    [[nodiscard]] bool pasuje(int dokument, int blok, const QString& tekst, int& pole, int odPola) const;

    std::shared_ptr<const OdczytKedu> odczyt_;
    mutable QHash<quint64, QList<PoleOdczytane>> pola_; ///< of the blocks that were looked at
};

} // namespace tornel::zus
