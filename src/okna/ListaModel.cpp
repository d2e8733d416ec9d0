#include "okna/ListaModel.h"
#include <QApplication>
#include <QFont>
#include <QPalette>

namespace tornel::okna {

namespace {

/// How a row with a note differs from the others.
QVariant wyroznienie(const QString& uwaga, int rola) {
    if (uwaga.isEmpty()) return {};
    switch (rola) {
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return uwaga;
    case Qt::ForegroundRole:
        return QApplication::palette().color(QPalette::PlaceholderText);
    case Qt::FontRole: {
        QFont pismo = QApplication::font("QAbstractItemView");
        pismo.setItalic(true);
        return pismo;
    }
    default:
        return {};
    }
}

} // namespace

ListaModel::ListaModel(QList<KolumnaListy> kolumny, QObject* rodzic)
    : QAbstractTableModel(rodzic), kolumny_(std::move(kolumny)) {}

void ListaModel::ustaw(QList<WierszListy> wiersze) {
    beginResetModel();
    wiersze_ = std::move(wiersze);
    poId_.clear();
    poId_.reserve(wiersze_.size());
    for (int i = 0; i < wiersze_.size(); ++i) poId_.insert(wiersze_.at(i).id, i);
    endResetModel();
}

void ListaModel::zmien(qint64 id, const QStringList& teksty, const QString& uwaga) {
    const int nr = wiersz(id);
    if (nr < 0) return;
    wiersze_[nr].teksty = teksty;
    wiersze_[nr].uwaga = uwaga;
    emit dataChanged(index(nr, 0), index(nr, columnCount() - 1));
}

void ListaModel::ustawNaglowek(int kolumna, const QString& naglowek) {
    kolumny_[kolumna].naglowek = naglowek;
    emit headerDataChanged(Qt::Horizontal, kolumna, kolumna);
}

qint64 ListaModel::id(int wiersz) const {
    return wiersz >= 0 && wiersz < wiersze_.size() ? wiersze_.at(wiersz).id : -1;
}

int ListaModel::rowCount(const QModelIndex& rodzic) const {
    return rodzic.isValid() ? 0 : static_cast<int>(wiersze_.size());
}

int ListaModel::columnCount(const QModelIndex& rodzic) const {
    return rodzic.isValid() ? 0 : static_cast<int>(kolumny_.size());
}

QVariant ListaModel::data(const QModelIndex& indeks, int rola) const {
    if (!checkIndex(indeks, CheckIndexOption::IndexIsValid)) return {};
    if (rola == Qt::DisplayRole) return wiersze_.at(indeks.row()).teksty.value(indeks.column());
    if (rola == Qt::TextAlignmentRole)
        return QVariant::fromValue(kolumny_.at(indeks.column()).wyrownanie | Qt::AlignVCenter);
    return wyroznienie(wiersze_.at(indeks.row()).uwaga, rola);
}

QVariant ListaModel::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
    if (kierunek != Qt::Horizontal || sekcja < 0 || sekcja >= kolumny_.size()) return {};
    if (rola == Qt::DisplayRole || rola == Qt::ToolTipRole) return kolumny_.at(sekcja).naglowek;
    if (rola == Qt::TextAlignmentRole)
        return QVariant::fromValue(kolumny_.at(sekcja).wyrownanie | Qt::AlignVCenter);
    return {};
}

} // namespace tornel::okna
