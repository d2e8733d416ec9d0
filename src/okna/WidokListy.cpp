#include "okna/WidokListy.h"
#include "okna/Klawisze.h"
#include "okna/MenuListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <numeric>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace tornel::okna {

WidokListy::WidokListy(QList<KolumnaListy> kolumny, QList<int> udzialy, QWidget* rodzic)
    : QTreeView(rodzic), model_(std::move(kolumny)), udzialy_(std::move(udzialy)) {
    setModel(&model_);
    setRootIsDecorated(false);
    setUniformRowHeights(true); // 10,000 rows open at once
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setTabKeyNavigation(false);
    header()->setFirstSectionMovable(true);
    header()->setHighlightSections(false);
    header()->setTextElideMode(Qt::ElideMiddle);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    ustawRole(RolaListy::Lista);
    connect(header(), &QHeaderView::sortIndicatorChanged, &model_, &ListaModel::sort);
    connect(header(), &QHeaderView::sectionResized, this, &WidokListy::przyjmijSzerokosc);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QWidget::customContextMenuRequested, this, [this](const QPoint& punkt) {
        if (rola_ == RolaListy::Lista) MenuKolumn(*this).exec(header()->mapToGlobal(punkt));
    });
    connect(&model_, &ListaModel::layoutChanged, this, [this] { scrollTo(currentIndex()); });
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& indeks) { emit wejscie(model_.id(indeks.row())); });
}

void WidokListy::ustawRole(RolaListy rola) {
    rola_ = rola;
    const bool lista = rola == RolaListy::Lista;
    header()->setSectionsClickable(lista);
    header()->setSectionsMovable(lista);
    header()->setSortIndicatorShown(lista);
}

void WidokListy::ustaw(QList<WierszListy> wiersze, qint64 id) {
    const QList<qint64> zaznaczone =
        selectionMode() == QAbstractItemView::SingleSelection ? QList<qint64>() : zaznaczeni();
    model_.ustaw(std::move(wiersze));
    if (model_.filtrowana() && (model_.rowCount() == 0 || model_.wiersz(id) < 0)) pokazWszystkie();
    if (model_.rowCount() == 0) return;
    if (!wybierz(id)) setCurrentIndex(model_.index(0, 0));
    if (id >= 0) zaznacz(zaznaczone);
}

void WidokListy::pokazWszystkie() {
    if (!model_.filtrowana()) return;
    filtruj({});
    emit filtrZdjety();
}

void WidokListy::zaznacz(const QList<qint64>& numery) {
    QItemSelection zaznaczenie;
    for (const qint64 id : numery)
        if (const int nr = model_.wiersz(id); nr >= 0)
            zaznaczenie.append({model_.index(nr, 0), model_.index(nr, model_.columnCount() - 1)});
    selectionModel()->select(zaznaczenie, QItemSelectionModel::Select);
}

int WidokListy::filtruj(const ListaModel::Warunek& warunek) {
    const int ile = warunek ? model_.ilePasuje(warunek) : static_cast<int>(model_.wszystkie().size());
    if (ile == 0) return 0;
    const qint64 id = wybrany();
    model_.filtruj(warunek);
    ustawBiezacy(id);
    return ile;
}

void WidokListy::ustawBiezacy(qint64 id) {
    const int nr = model_.wiersz(id);
    if (nr < 0) return;
    const QSignalBlocker cisza(this); // the same row as before
    setCurrentIndex(model_.index(nr, 0));
}

void WidokListy::sortuj(int kolumna, Qt::SortOrder kierunek) {
    header()->setSortIndicator(kolumna, kierunek);
}

void WidokListy::sortujKolejno(int kolumna) {
    if (kolumna >= model_.columnCount()) return;
    const bool taSama = header()->sortIndicatorSection() == kolumna;
    if (taSama && header()->sortIndicatorOrder() == Qt::DescendingOrder)
        return sortuj(-1, Qt::AscendingOrder);
    sortuj(kolumna, taSama ? Qt::DescendingOrder : Qt::AscendingOrder);
}

QString WidokListy::zaznaczoneJakoTekst() const {
    QList<int> wiersze;
    for (const QItemSelectionRange& zakres : selectionModel()->selection())
        for (int i = zakres.top(); i <= zakres.bottom(); ++i) wiersze.append(i);
    std::ranges::sort(wiersze);
    if (wiersze.isEmpty()) return {};
    const QList<int> kolumny = widoczneKolumny();
    QStringList naglowki;
    for (const int k : kolumny)
        naglowki.append(model_.headerData(k, Qt::Horizontal, Qt::DisplayRole).toString());
    QStringList linie{naglowki.join(QLatin1Char('\t'))};
    for (const int i : std::as_const(wiersze)) {
        QStringList teksty;
        for (const int k : kolumny) {
            // A break inside a text would break the table.
            QString tekst = model_.data(model_.index(i, k), Qt::DisplayRole).toString();
            for (const char16_t znak : {u'\t', u'\r', u'\n'}) tekst.replace(QChar(znak), QLatin1Char(' '));
            teksty.append(tekst);
        }
        linie.append(teksty.join(QLatin1Char('\t')));
    }
    return linie.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void WidokListy::kopiuj() const {
    if (const QString tekst = zaznaczoneJakoTekst(); !tekst.isEmpty())
        QApplication::clipboard()->setText(tekst);
}

qint64 WidokListy::sasiad(qint64 id) const {
    const int nr = model_.wiersz(id);
    if (nr < 0) return -1;
    return model_.id(nr + 1 < model_.rowCount() ? nr + 1 : nr - 1);
}

bool WidokListy::wybierz(qint64 id) {
    if (!model_.zawiera(id)) return false;
    if (model_.wiersz(id) < 0) pokazWszystkie();
    setCurrentIndex(model_.index(model_.wiersz(id), 0));
    return true;
}

qint64 WidokListy::wybrany() const { return model_.id(currentIndex().row()); }

QList<qint64> WidokListy::zaznaczeni() const {
    QList<qint64> wynik;
    for (const QItemSelectionRange& zakres : selectionModel()->selection())
        for (int i = zakres.top(); i <= zakres.bottom(); ++i) wynik.append(model_.id(i));
    std::ranges::sort(wynik);
    return wynik;
}

void WidokListy::ustawPodpowiedz(const QString& tekst) {
    podpowiedz_ = tekst;
    viewport()->update();
}

void WidokListy::currentChanged(const QModelIndex& biezacy, const QModelIndex& poprzedni) {
    QTreeView::currentChanged(biezacy, poprzedni);
    if (biezacy.isValid() && biezacy.row() != poprzedni.row()) emit wybrano(model_.id(biezacy.row()));
}

void WidokListy::keyPressEvent(QKeyEvent* zdarzenie) {
    const bool enter = zdarzenie->key() == Qt::Key_Return || zdarzenie->key() == Qt::Key_Enter ||
                       zdarzenie->key() == okna::klawisz(Polecenie::Edycja).klawisz.key();
    // Where the list leads nowhere, Enter is left to the default button.
    const bool prowadzi = isSignalConnected(QMetaMethod::fromSignal(&WidokListy::wejscie));
    if (enter && prowadzi && currentIndex().isValid()) {
        emit wejscie(wybrany());
        return;
    }
    const bool lista = rola_ == RolaListy::Lista;
    const int klawisz = zdarzenie->key();
    if (lista && zdarzenie->matches(QKeySequence::Copy)) return kopiuj();
    if (lista && zdarzenie->matches(QKeySequence::SelectAll) && model_.rowCount() > 0)
        return selectionModel()->select(
            {model_.index(0, 0), model_.index(model_.rowCount() - 1, model_.columnCount() - 1)},
            QItemSelectionModel::Select);
    if (lista && zdarzenie->modifiers() == Qt::ControlModifier && klawisz >= Qt::Key_1 &&
        klawisz <= Qt::Key_9)
        return sortujKolejno(klawisz - Qt::Key_1);
    QTreeView::keyPressEvent(zdarzenie);
}

void WidokListy::resizeEvent(QResizeEvent* zdarzenie) {
    QTreeView::resizeEvent(zdarzenie);
    rozlozKolumny();
}

QList<int> WidokListy::widoczneKolumny() const {
    QList<int> wynik;
    for (const int k : ukladKolumn())
        if (k >= 0) wynik.append(k);
    return wynik;
}

QList<int> WidokListy::ukladKolumn() const {
    QList<int> wynik;
    for (int miejsce = 0; miejsce < header()->count(); ++miejsce) {
        const int k = header()->logicalIndex(miejsce);
        wynik.append(header()->isSectionHidden(k) ? -1 - k : k);
    }
    return wynik;
}

void WidokListy::ustawUkladKolumn(const QList<int>& uklad) {
    QList<int> kolumny;
    for (const int k : uklad) kolumny.append(k < 0 ? -1 - k : k);
    QList<int> posortowane = kolumny;
    std::ranges::sort(posortowane);
    QList<int> wszystkie(header()->count());
    std::iota(wszystkie.begin(), wszystkie.end(), 0);
    const bool ktoras = std::ranges::any_of(uklad, [](int k) { return k >= 0; });
    if (posortowane != wszystkie || !ktoras) return;
    {
        const QScopedValueRollback rozklada(rozklada_, true);
        for (int miejsce = 0; miejsce < kolumny.size(); ++miejsce) {
            header()->moveSection(header()->visualIndex(kolumny.at(miejsce)), miejsce);
            setColumnHidden(kolumny.at(miejsce), uklad.at(miejsce) < 0);
        }
    }
    rozlozKolumny();
}

void WidokListy::pokazKolumne(int kolumna, bool pokaz) {
    if (!pokaz && widoczneKolumny() == QList<int>{kolumna}) return;
    {
        const QScopedValueRollback rozklada(rozklada_, true);
        setColumnHidden(kolumna, !pokaz);
    }
    rozlozKolumny();
}

/// The shares are of the whole width, those of the hidden columns go to the others.
void WidokListy::rozlozKolumny() {
    const QScopedValueRollback rozklada(rozklada_, true);
    const QList<int> widoczne = widoczneKolumny();
    if (udzialy_.size() < model_.columnCount() || widoczne.isEmpty()) return;
    int calosc = 0;
    for (const int k : widoczne) calosc += udzialy_.at(k);
    int reszta = viewport()->width();
    for (const int k : widoczne.first(widoczne.size() - 1)) {
        const int szerokosc = viewport()->width() * udzialy_.at(k) / std::max(calosc, 1);
        setColumnWidth(k, szerokosc);
        reszta -= szerokosc;
    }
    // The header stretches its last section only when it grows, not when the others do.
    setColumnWidth(widoczne.last(), reszta);
}

void WidokListy::przyjmijSzerokosc() {
    // Sections change by themselves too while the list is being built and laid out.
    if (rozklada_ || !isVisible() || viewport()->width() <= 0) return;
    if (!header()->underMouse() && !header()->hasFocus()) return;
    const QList<int> widoczne = widoczneKolumny();
    int calosc = 0;
    for (const int k : widoczne) calosc += udzialy_.value(k);
    for (const int k : widoczne)
        if (k < udzialy_.size()) udzialy_[k] = std::max(1, columnWidth(k) * calosc / viewport()->width());
}

void WidokListy::ustawUdzialy(const QList<int>& udzialy) {
    const bool zaWaska = std::ranges::any_of(udzialy, [](int udzial) { return udzial < 1; });
    if (udzialy.size() != udzialy_.size() || zaWaska) return;
    udzialy_ = udzialy;
    rozlozKolumny();
}

void WidokListy::contextMenuEvent(QContextMenuEvent* zdarzenie) {
    if (rola_ != RolaListy::Lista) return;
    // The menu key opens it at the row, not where the mouse happens to be.
    const bool klawisz = zdarzenie->reason() == QContextMenuEvent::Keyboard;
    const QPoint punkt =
        klawisz ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : zdarzenie->globalPos();
    MenuListy(*this).exec(punkt);
}

void WidokListy::paintEvent(QPaintEvent* zdarzenie) {
    QTreeView::paintEvent(zdarzenie);
    if (model_.rowCount() > 0 || podpowiedz_.isEmpty()) return;
    QPainter malarz(viewport());
    malarz.setPen(palette().color(QPalette::PlaceholderText));
    const int brzeg = 2 * Wyglad::kSiatka;
    malarz.drawText(viewport()->rect().adjusted(brzeg, brzeg, -brzeg, -brzeg),
                    static_cast<int>(Qt::AlignHCenter | Qt::AlignTop) | Qt::TextWordWrap, podpowiedz_);
}

} // namespace tornel::okna
