#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>

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
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    header()->setTextElideMode(Qt::ElideMiddle);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& indeks) { emit wejscie(model_.id(indeks.row())); });
}

void WidokListy::ustaw(QList<WierszListy> wiersze, qint64 id) {
    model_.ustaw(std::move(wiersze));
    if (model_.rowCount() == 0) return;
    if (!wybierz(id)) setCurrentIndex(model_.index(0, 0));
}

bool WidokListy::wybierz(qint64 id) {
    const int nr = model_.wiersz(id);
    if (nr < 0) return false;
    setCurrentIndex(model_.index(nr, 0));
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
    const bool enter = zdarzenie->key() == Qt::Key_Return || zdarzenie->key() == Qt::Key_Enter;
    // Where the list leads nowhere, Enter is left to the default button.
    const bool prowadzi = isSignalConnected(QMetaMethod::fromSignal(&WidokListy::wejscie));
    if (enter && prowadzi && currentIndex().isValid()) {
        emit wejscie(wybrany());
        return;
    }
    QTreeView::keyPressEvent(zdarzenie);
}

void WidokListy::resizeEvent(QResizeEvent* zdarzenie) {
    QTreeView::resizeEvent(zdarzenie);
    const int ostatnia = model_.columnCount() - 1;
    int reszta = viewport()->width();
    for (int k = 0; k < ostatnia && k < udzialy_.size(); ++k) {
        const int szerokosc = viewport()->width() * udzialy_.at(k) / 100;
        setColumnWidth(k, szerokosc);
        reszta -= szerokosc;
    }
    // The header stretches its last section only when it grows, not when the others do.
    if (udzialy_.size() >= ostatnia) setColumnWidth(ostatnia, reszta);
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
