#include "zus/ModelKedu.h"
#include <algorithm>

namespace tornel::zus {

namespace {

/// An index carries what it stands under: 0 for a document, its document + 1 for a block, both for a field.
constexpr int kBityDokumentu = 32;
constexpr quint64 kMaska = (quint64(1) << kBityDokumentu) - 1;

quint64 klucz(int dokument, int blok) {
    return static_cast<quint64>(blok + 1) << kBityDokumentu | static_cast<quint64>(dokument + 1);
}

/// Fields of that many blocks are kept; a search through a large collection would keep them all.
constexpr qsizetype kNajwiecejBlokow = 2000;

} // namespace

static_assert(sizeof(quintptr) == sizeof(quint64), "an index holds both numbers");

void ModelKedu::ustaw(std::shared_ptr<const OdczytKedu> odczyt) {
    beginResetModel();
    odczyt_ = std::move(odczyt);
    pola_.clear();
    endResetModel();
}

ModelKedu::Miejsce ModelKedu::nad(const QModelIndex& indeks) {
    const auto id = static_cast<quint64>(indeks.internalId());
    return {static_cast<int>(id & kMaska) - 1, static_cast<int>(id >> kBityDokumentu) - 1};
}

const QList<PoleOdczytane>& ModelKedu::pola(int dokument, int blok) const {
    const quint64 k = klucz(dokument, blok);
    const auto znane = pola_.constFind(k);
    if (znane != pola_.constEnd()) return *znane;
    if (pola_.size() >= kNajwiecejBlokow) pola_.clear();
    return *pola_.insert(k, odczyt_->pola(odczyt_->dokumenty().at(dokument).bloki.at(blok)));
}

QModelIndex ModelKedu::index(int wiersz, int kolumna, const QModelIndex& rodzic) const {
    if (!hasIndex(wiersz, kolumna, rodzic)) return {};
    if (!rodzic.isValid()) return createIndex(wiersz, kolumna, quintptr(0));
    const Miejsce m = nad(rodzic);
    return createIndex(wiersz, kolumna,
                       m.dokument < 0 ? klucz(rodzic.row(), -1) : klucz(m.dokument, rodzic.row()));
}

QModelIndex ModelKedu::parent(const QModelIndex& indeks) const {
    if (!indeks.isValid()) return {};
    const Miejsce m = nad(indeks);
    if (m.dokument < 0) return {};
    return m.blok < 0 ? createIndex(m.dokument, 0, quintptr(0))
                      : createIndex(m.blok, 0, klucz(m.dokument, -1));
}

int ModelKedu::rowCount(const QModelIndex& rodzic) const {
    if (!odczyt_ || rodzic.column() > 0) return 0;
    if (!rodzic.isValid()) return static_cast<int>(odczyt_->dokumenty().size());
    const Miejsce m = nad(rodzic);
    if (m.dokument < 0) return static_cast<int>(odczyt_->dokumenty().at(rodzic.row()).bloki.size());
    return m.blok < 0 ? static_cast<int>(pola(m.dokument, rodzic.row()).size()) : 0;
}

int ModelKedu::columnCount(const QModelIndex&) const { return Kolumn; }

QString ModelKedu::tekst(const QModelIndex& indeks) const {
    const Miejsce m = nad(indeks);
    const bool nazwa = indeks.column() == Nazwa;
    if (m.dokument < 0) {
        const DokumentOdczytany& d = odczyt_->dokumenty().at(indeks.row());
        return nazwa ? QStringLiteral("ZUS ") + d.kod : odczyt_->osoba(d);
    }
    if (m.blok < 0) {
        const BlokOdczytany& b = odczyt_->dokumenty().at(m.dokument).bloki.at(indeks.row());
        if (nazwa) return b.opis.isEmpty() ? b.nazwa : QStringLiteral("%1  %2").arg(b.nazwa, b.opis);
        return odczyt_->osoba(b);
    }
    const PoleOdczytane& p = pola(m.dokument, m.blok).at(indeks.row());
    if (!nazwa) return p.puste ? QString() : p.wartosc;
    return p.puste ? QStringLiteral("(niewypełniane)") : p.napis;
}

QVariant ModelKedu::data(const QModelIndex& indeks, int rola) const {
    if (!checkIndex(indeks, CheckIndexOption::IndexIsValid)) return {};
    const Miejsce m = nad(indeks);
    switch (rola) {
    case Qt::DisplayRole:
        return tekst(indeks);
    case Qt::ToolTipRole:
        return m.dokument < 0 ? odczyt_->dokumenty().at(indeks.row()).opis : tekst(indeks);
    default:
        return {};
    }
}

QVariant ModelKedu::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
    if (kierunek != Qt::Horizontal || rola != Qt::DisplayRole) return {};
    return sekcja == Nazwa ? QStringLiteral("DOKUMENT, BLOK, POLE") : QStringLiteral("WARTOŚĆ");
}

bool ModelKedu::pasuje(int dokument, int blok, const QString& tekst, int& pole, int odPola) const {
    // Not kept: a search looks at every block of the collection.
    const QList<PoleOdczytane> pola = odczyt_->pola(odczyt_->dokumenty().at(dokument).bloki.at(blok));
    for (int p = odPola; p < pola.size(); ++p) {
        if (pola.at(p).puste) continue;
        if (!pola.at(p).wartosc.contains(tekst, Qt::CaseInsensitive) &&
            !pola.at(p).napis.contains(tekst, Qt::CaseInsensitive))
            continue;
        pole = p;
        return true;
    }
    return false;
}

QModelIndex ModelKedu::szukaj(const QString& tekst, const QModelIndex& od) const {
    if (!odczyt_ || tekst.isEmpty()) return {};
    const Miejsce m = od.isValid() ? nad(od) : Miejsce{};
    const int pierwszy = !od.isValid() ? 0 : m.dokument < 0 ? od.row() : m.dokument;
    const int pierwszyBlok = m.dokument < 0 ? 0 : m.blok < 0 ? od.row() : m.blok;
    const int odPola = m.blok < 0 ? 0 : od.row() + 1;
    const auto& dokumenty = odczyt_->dokumenty();
    const auto dokumentow = static_cast<int>(dokumenty.size());
    // Once around, the block where it began a second time from its top.
    for (int i = 0; i <= dokumentow && dokumentow > 0; ++i) {
        const int d = (pierwszy + i) % dokumentow;
        const auto blokow = static_cast<int>(dokumenty.at(d).bloki.size());
        const int koniec = i == dokumentow ? std::min(blokow, pierwszyBlok + 1) : blokow;
        for (int b = i == 0 ? pierwszyBlok : 0; b < koniec; ++b) {
            int pole = 0;
            if (pasuje(d, b, tekst, pole, i == 0 && b == pierwszyBlok ? odPola : 0))
                return createIndex(pole, 0, klucz(d, b));
        }
    }
    return {};
}

} // namespace tornel::zus
