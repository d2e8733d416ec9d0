#include "okna/ListaModel.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <limits>
#include <numeric>
#include <QApplication>
#include <QCollator>
#include <QFont>
#include <QLocale>
#include <QPalette>

namespace tornel::okna {

namespace {

/// How a row with a note differs from the others.
QVariant wyroznienie(const WierszListy& wiersz, int kolumna, int rola) {
    if (wiersz.uwaga.isEmpty()) return {};
    const bool uboczna = wiersz.waga == Waga::Uboczna;
    switch (rola) {
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return wiersz.uwaga;
    case Qt::DecorationRole:
        return uboczna || kolumna != 0 ? QVariant() : Wyglad::znakUwagi();
    case Qt::ForegroundRole:
        if (!uboczna) return {};
        return QApplication::palette().color(QPalette::PlaceholderText);
    case Qt::FontRole: {
        if (!uboczna) return {};
        QFont pismo = QApplication::font("QAbstractItemView");
        pismo.setItalic(true);
        return pismo;
    }
    default:
        return {};
    }
}

/// Texts that are no number or date stand before all others.
constexpr qint64 kBrakWartosci = std::numeric_limits<qint64>::min();

qint64 wartoscLiczby(const QString& tekst) {
    const auto kwota = CzytajKwote(tekst);
    return kwota ? kwota->surowa() : kBrakWartosci;
}

qint64 wartoscDaty(const QString& tekst) {
    if (const auto data = CzytajWpisanaDate(tekst)) return data->toJulianDay();
    if (const auto miesiac = CzytajWpisanaDate(QStringLiteral("01.") + tekst)) return miesiac->toJulianDay();
    for (int m = 1; m <= 12; ++m)
        if (tekst.compare(NazwaMiesiaca(m), Qt::CaseInsensitive) == 0) return m;
    return kBrakWartosci;
}

template <typename Klucz>
void ustawWedlug(std::vector<int>& kolejnosc, const std::vector<Klucz>& klucze, Qt::SortOrder kierunek) {
    const auto mniejszy = [&](int a, int b) {
        return klucze[static_cast<std::size_t>(a)] < klucze[static_cast<std::size_t>(b)];
    };
    if (kierunek == Qt::AscendingOrder)
        std::ranges::stable_sort(kolejnosc, mniejszy);
    else
        std::ranges::stable_sort(kolejnosc, [&](int a, int b) { return mniejszy(b, a); });
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
    kolejnosc_ = posortowane();
    uloz();
    endResetModel();
}

void ListaModel::zmien(qint64 id, const QStringList& teksty, const QString& uwaga, Waga waga) {
    const int miejsce = poId_.value(id, -1);
    if (miejsce < 0) return;
    wiersze_[miejsce].teksty = teksty;
    wiersze_[miejsce].uwaga = uwaga;
    wiersze_[miejsce].waga = waga;
    if (const int nr = wiersz(id); nr >= 0) emit dataChanged(index(nr, 0), index(nr, columnCount() - 1));
}

int ListaModel::ilePasuje(const Warunek& warunek) const {
    return static_cast<int>(std::ranges::count_if(wiersze_, warunek));
}

void ListaModel::filtruj(Warunek warunek) {
    beginResetModel();
    warunek_ = std::move(warunek);
    uloz();
    endResetModel();
}

void ListaModel::sort(int kolumna, Qt::SortOrder kierunek) {
    if (kolumna >= kolumny_.size()) return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList dawne = persistentIndexList();
    std::vector<int> miejsca;
    for (const QModelIndex& i : dawne) miejsca.push_back(widoczne_[static_cast<std::size_t>(i.row())]);
    kolumnaSortowania_ = kolumna;
    kierunek_ = kierunek;
    kolejnosc_ = posortowane();
    uloz();
    QModelIndexList nowe;
    for (qsizetype i = 0; i < dawne.size(); ++i)
        nowe.append(index(miejsca_[static_cast<std::size_t>(miejsca[static_cast<std::size_t>(i)])],
                          dawne.at(i).column()));
    changePersistentIndexList(dawne, nowe);
    emit layoutChanged({}, VerticalSortHint);
}

std::vector<int> ListaModel::posortowane() const {
    const auto ile = static_cast<std::size_t>(wiersze_.size());
    std::vector<int> kolejnosc(ile);
    std::iota(kolejnosc.begin(), kolejnosc.end(), 0);
    if (kolumnaSortowania_ < 0) return kolejnosc;
    const KolumnaListy& kolumna = kolumny_.at(kolumnaSortowania_);
    const auto tekst = [this](std::size_t i) {
        return wiersze_.at(static_cast<qsizetype>(i)).teksty.value(kolumnaSortowania_);
    };
    const bool prawa = kolumna.wyrownanie.testFlag(Qt::AlignRight);
    const bool liczba =
        kolumna.porzadek == Porzadek::Liczba || (kolumna.porzadek == Porzadek::WgWyrownania && prawa);
    if (liczba || kolumna.porzadek == Porzadek::Data) {
        std::vector<qint64> klucze(ile);
        for (std::size_t i = 0; i < ile; ++i)
            klucze[i] = liczba ? wartoscLiczby(tekst(i)) : wartoscDaty(tekst(i));
        ustawWedlug(kolejnosc, klucze, kierunek_);
        return kolejnosc;
    }
    const QCollator polski(QLocale(QLocale::Polish, QLocale::Poland));
    std::vector<QCollatorSortKey> klucze;
    klucze.reserve(ile);
    for (std::size_t i = 0; i < ile; ++i) klucze.push_back(polski.sortKey(tekst(i)));
    ustawWedlug(kolejnosc, klucze, kierunek_);
    return kolejnosc;
}

void ListaModel::uloz() {
    widoczne_ = kolejnosc_;
    if (warunek_) std::erase_if(widoczne_, [this](int i) { return !warunek_(wiersze_.at(i)); });
    miejsca_.assign(static_cast<std::size_t>(wiersze_.size()), -1);
    for (std::size_t i = 0; i < widoczne_.size(); ++i)
        miejsca_[static_cast<std::size_t>(widoczne_[i])] = static_cast<int>(i);
}

void ListaModel::ustawNaglowek(int kolumna, const QString& naglowek) {
    kolumny_[kolumna].naglowek = naglowek;
    emit headerDataChanged(Qt::Horizontal, kolumna, kolumna);
}

qint64 ListaModel::id(int wiersz) const {
    return wiersz >= 0 && wiersz < rowCount() ? widoczny(wiersz).id : -1;
}

int ListaModel::wiersz(qint64 id) const {
    const auto ta = poId_.constFind(id);
    return ta == poId_.constEnd() ? -1 : miejsca_[static_cast<std::size_t>(*ta)];
}

int ListaModel::rowCount(const QModelIndex& rodzic) const {
    return rodzic.isValid() ? 0 : static_cast<int>(widoczne_.size());
}

int ListaModel::columnCount(const QModelIndex& rodzic) const {
    return rodzic.isValid() ? 0 : static_cast<int>(kolumny_.size());
}

QVariant ListaModel::data(const QModelIndex& indeks, int rola) const {
    if (!checkIndex(indeks, CheckIndexOption::IndexIsValid)) return {};
    if (rola == Qt::DisplayRole) return widoczny(indeks.row()).teksty.value(indeks.column());
    if (rola == Qt::TextAlignmentRole)
        return QVariant::fromValue(kolumny_.at(indeks.column()).wyrownanie | Qt::AlignVCenter);
    return wyroznienie(widoczny(indeks.row()), indeks.column(), rola);
}

QVariant ListaModel::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
    if (kierunek != Qt::Horizontal || sekcja < 0 || sekcja >= kolumny_.size()) return {};
    if (rola == Qt::DisplayRole || rola == Qt::ToolTipRole) return kolumny_.at(sekcja).naglowek;
    if (rola == Qt::TextAlignmentRole)
        return QVariant::fromValue(kolumny_.at(sekcja).wyrownanie | Qt::AlignVCenter);
    return {};
}

} // namespace tornel::okna
