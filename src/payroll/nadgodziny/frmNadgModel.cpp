#include "payroll/nadgodziny/frmNadgModel.h"
#include "common/Daty.h"
#include "common/Godziny.h"
#include <QApplication>
#include <QPalette>

namespace tornel::payroll {

using Rodzaj = ModelNadgodzin::Rodzaj;

namespace {

constexpr int kPierwszaGodzin = 2; // behind "DATA" and "DZIEN TYG"
constexpr Rodzaj kZaGodzinami[] = {Rodzaj::Stawka, Rodzaj::Kwota, Rodzaj::Uwagi};
constexpr Rodzaj kKolumnyGrup[] = {Rodzaj::Grupa, Rodzaj::Godziny, Rodzaj::Rownanie, Rodzaj::Stawka,
                                   Rodzaj::Kwota};

QString naglowek(Rodzaj rodzaj) {
    switch (rodzaj) {
    case Rodzaj::Data:
        return QStringLiteral("DATA");
    case Rodzaj::Dzien:
        return QStringLiteral("DZIEN TYG");
    case Rodzaj::Grupa:
        return QStringLiteral("GRUPA CZASOWA");
    case Rodzaj::Godziny:
        return QStringLiteral("GODZINY");
    case Rodzaj::Rownanie:
        return QStringLiteral("RÓWNANIE STAWKI");
    case Rodzaj::Stawka:
        return QStringLiteral("STAWKA");
    case Rodzaj::Kwota:
        return QStringLiteral("KWOTA");
    case Rodzaj::Uwagi:
        return QStringLiteral("UWAGI");
    }
    return {};
}

bool wpisywane(Rodzaj rodzaj) {
    return rodzaj == Rodzaj::Godziny || rodzaj == Rodzaj::Stawka || rodzaj == Rodzaj::Uwagi;
}

std::size_t nr(const ModelNadgodzin::Komorka& k) { return static_cast<std::size_t>(k.grupa - 1); }

} // namespace

bool ModelNadgodzin::liczba(Rodzaj rodzaj) {
    return rodzaj == Rodzaj::Godziny || rodzaj == Rodzaj::Stawka || rodzaj == Rodzaj::Kwota;
}

int ModelNadgodzin::kolumnaGodzin() const { return szczegolowa_ ? kPierwszaGodzin : 1; }

void ModelNadgodzin::ustaw(ListaNadgodzin* lista) {
    beginResetModel();
    lista_ = lista;
    wiersze_ = lista ? lista->wiersze() : QList<WierszNadgodzin>();
    szczegolowa_ = lista && lista->szczegolowa();
    endResetModel();
}

Rodzaj ModelNadgodzin::rodzajKolumny(int kolumna) const {
    if (!szczegolowa_) return kKolumnyGrup[kolumna];
    if (kolumna < kPierwszaGodzin) return kolumna == 0 ? Rodzaj::Data : Rodzaj::Dzien;
    const int za = kolumna - kPierwszaGodzin - kGrupNadgodzin;
    return za < 0 ? Rodzaj::Godziny : kZaGodzinami[za];
}

ModelNadgodzin::Komorka ModelNadgodzin::komorka(int wiersz, int kolumna) const {
    const Rodzaj rodzaj = rodzajKolumny(kolumna);
    if (!szczegolowa_) return {rodzaj, 0, wiersz + 1};
    return {rodzaj, wiersz, rodzaj == Rodzaj::Godziny ? kolumna - kPierwszaGodzin + 1 : 0};
}

int ModelNadgodzin::rowCount(const QModelIndex& rodzic) const {
    if (rodzic.isValid() || wiersze_.isEmpty()) return 0;
    return szczegolowa_ ? static_cast<int>(wiersze_.size()) : kGrupNadgodzin;
}

int ModelNadgodzin::columnCount(const QModelIndex& rodzic) const {
    if (rodzic.isValid() || wiersze_.isEmpty()) return 0;
    return szczegolowa_ ? kPierwszaGodzin + kGrupNadgodzin + static_cast<int>(std::size(kZaGodzinami))
                        : static_cast<int>(std::size(kKolumnyGrup));
}

QString ModelNadgodzin::tekst(const Komorka& k) const {
    const WierszNadgodzin& w = wiersze_.at(k.wiersz);
    switch (k.rodzaj) {
    case Rodzaj::Data:
        return FormatDaty(w.data);
    case Rodzaj::Dzien:
        return w.dzien;
    case Rodzaj::Grupa:
        return lista_->nazwaGrupy(k.grupa);
    case Rodzaj::Godziny:
        return FormatGodzin(w.sumy.godziny.at(nr(k)));
    case Rodzaj::Rownanie:
        return lista_->rownania().dla(w.data, k.grupa);
    case Rodzaj::Stawka:
        return FormatKwoty(w.stawka);
    case Rodzaj::Kwota:
        return FormatKwoty(k.grupa > 0 ? w.sumy.kwoty.at(nr(k)) : w.sumy.kwotaRazem());
    case Rodzaj::Uwagi:
        return w.uwagi;
    }
    return {};
}

QString ModelNadgodzin::doEdycji(const Komorka& k) const {
    const WierszNadgodzin& w = wiersze_.at(k.wiersz);
    if (k.rodzaj == Rodzaj::Godziny) return TekstGodzin(w.sumy.godziny.at(nr(k)));
    return k.rodzaj == Rodzaj::Stawka ? TekstKwoty(w.stawka) : tekst(k);
}

QString ModelNadgodzin::podpowiedz(const Komorka& k) const {
    if (k.rodzaj == Rodzaj::Rownanie || k.rodzaj == Rodzaj::Uwagi) return tekst(k);
    if (k.rodzaj != Rodzaj::Godziny) return {};
    const WierszNadgodzin& w = wiersze_.at(k.wiersz);
    if (w.sumy.godziny.at(nr(k)).zero()) return {};
    return QStringLiteral("%1 godz.: %2 zł").arg(doEdycji(k), FormatKwoty(w.sumy.kwoty.at(nr(k))));
}

QVariant ModelNadgodzin::barwa(const Komorka& k, int rola) const {
    const WierszNadgodzin& w = wiersze_.at(k.wiersz);
    const QPalette paleta = QApplication::palette();
    if (rola == Qt::BackgroundRole) {
        const bool obliczane = k.rodzaj == Rodzaj::Kwota || k.rodzaj == Rodzaj::Rownanie;
        return obliczane ? QVariant(paleta.color(QPalette::AlternateBase)) : QVariant();
    }
    if (k.rodzaj == Rodzaj::Godziny && w.sumy.godziny.at(nr(k)).zero())
        return paleta.color(QPalette::PlaceholderText);
    const bool dzien = k.rodzaj == Rodzaj::Data || k.rodzaj == Rodzaj::Dzien;
    return dzien && w.data.dayOfWeek() >= Qt::Saturday ? QVariant(paleta.color(QPalette::Link)) : QVariant();
}

QVariant ModelNadgodzin::data(const QModelIndex& indeks, int rola) const {
    if (!checkIndex(indeks, CheckIndexOption::IndexIsValid)) return {};
    const Komorka k = komorka(indeks.row(), indeks.column());
    switch (rola) {
    case Qt::DisplayRole:
        return tekst(k);
    case Qt::EditRole:
        return doEdycji(k);
    case Qt::ToolTipRole:
        return podpowiedz(k);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((liczba(k.rodzaj) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
    case Qt::BackgroundRole:
        return barwa(k, rola);
    default:
        return {};
    }
}

QVariant ModelNadgodzin::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
    if (kierunek != Qt::Horizontal || sekcja < 0 || sekcja >= columnCount()) return {};
    const Komorka k = komorka(0, sekcja);
    const bool nazwaGrupy = szczegolowa_ && k.rodzaj == Rodzaj::Godziny;
    switch (rola) {
    case Qt::DisplayRole:
        return nazwaGrupy ? lista_->nazwaGrupy(k.grupa) : naglowek(k.rodzaj);
    case Qt::ToolTipRole:
        if (szczegolowa_ && k.rodzaj == Rodzaj::Stawka)
            return QStringLiteral(
                "Stawka obowiązuje w swoim dniu. „Stawka do końca miesiąca” przenosi ją na następne dni.");
        return nazwaGrupy ? lista_->nazwaGrupy(k.grupa) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((liczba(k.rodzaj) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

Qt::ItemFlags ModelNadgodzin::flags(const QModelIndex& indeks) const {
    if (!indeks.isValid()) return {};
    const Qt::ItemFlags wybierane = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return wpisywane(rodzajKolumny(indeks.column())) ? wybierane | Qt::ItemIsEditable : wybierane;
}

bool ModelNadgodzin::wpisz(const Komorka& k, const QString& tekst) {
    switch (k.rodzaj) {
    case Rodzaj::Godziny:
        return lista_->ZmienGodziny(k.wiersz, k.grupa, tekst);
    case Rodzaj::Stawka:
        return lista_->ZmienStawke(k.wiersz, tekst);
    case Rodzaj::Uwagi:
        lista_->ZmienUwagi(k.wiersz, tekst);
        return true;
    default:
        return false;
    }
}

bool ModelNadgodzin::setData(const QModelIndex& indeks, const QVariant& wartosc, int rola) {
    if (rola != Qt::EditRole || !checkIndex(indeks, CheckIndexOption::IndexIsValid)) return false;
    const Komorka k = komorka(indeks.row(), indeks.column());
    const QString tekst = wartosc.toString();
    if (tekst == doEdycji(k)) return true;
    try {
        if (!wpisz(k, tekst)) return false;
        odczytaj();
    } catch (...) {
        blad_ = std::current_exception();
        return false;
    }
    return true;
}

void ModelNadgodzin::odczytaj() {
    wiersze_ = lista_->wiersze();
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit zmieniono();
}

void ModelNadgodzin::przeniesStawke(int wiersz) {
    if (szczegolowa_ && lista_->PrzeniesStawke(wiersz)) odczytaj();
}

} // namespace tornel::payroll
