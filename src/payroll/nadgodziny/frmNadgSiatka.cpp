#include "payroll/nadgodziny/frmNadgSiatka.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace tornel::payroll {

using Rodzaj = ModelNadgodzin::Rodzaj;

namespace {

constexpr int kDlugoscUwag = schemat::NADGDzien("uwagi").def().rozmiar;
constexpr int kDlugoscLiczby = 16;
constexpr int kZnakiNazwyGrupy = 26;

} // namespace

/// The editor of a cell: a line of text whose keys move through the grid.
class EdycjaKomorki : public QStyledItemDelegate {
public:
    explicit EdycjaKomorki(SiatkaNadgodzin& siatka) : QStyledItemDelegate(&siatka), siatka_(siatka) {}

    QWidget* createEditor(QWidget* rodzic, const QStyleOptionViewItem&,
                          const QModelIndex& indeks) const override {
        const auto k = siatka_.model_.komorka(indeks.row(), indeks.column());
        auto* linia = new QLineEdit(rodzic);
        linia->setFrame(false);
        linia->setMaxLength(k.rodzaj == Rodzaj::Uwagi ? kDlugoscUwag : kDlugoscLiczby);
        if (ModelNadgodzin::liczba(k.rodzaj)) linia->setAlignment(Qt::AlignRight);
        siatka_.edytor_ = linia;
        return linia;
    }
    void setEditorData(QWidget* edytor, const QModelIndex& indeks) const override {
        auto* linia = static_cast<QLineEdit*>(edytor);
        // What is being typed stays when the row behind it changes.
        if (!linia->isModified()) linia->setText(indeks.data(Qt::EditRole).toString());
    }
    void setModelData(QWidget* edytor, QAbstractItemModel* model, const QModelIndex& indeks) const override {
        siatka_.przyjeto_ = model->setData(indeks, static_cast<QLineEdit*>(edytor)->text(), Qt::EditRole);
    }

protected:
    bool eventFilter(QObject* edytor, QEvent* zdarzenie) override {
        if (zdarzenie->type() == QEvent::KeyPress) {
            switch (static_cast<QKeyEvent*>(zdarzenie)->key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
                siatka_.zatwierdz(SiatkaNadgodzin::Ruch::Nastepne);
                return true;
            case Qt::Key_Up:
                siatka_.zatwierdz(SiatkaNadgodzin::Ruch::Gora);
                return true;
            case Qt::Key_Down:
                siatka_.zatwierdz(SiatkaNadgodzin::Ruch::Dol);
                return true;
            case Qt::Key_Tab:
                siatka_.zatwierdz(SiatkaNadgodzin::Ruch::Prawo);
                return true;
            case Qt::Key_Backtab:
                siatka_.zatwierdz(SiatkaNadgodzin::Ruch::Lewo);
                return true;
            default:
                break;
            }
        }
        return QStyledItemDelegate::eventFilter(edytor, zdarzenie);
    }

private:
    SiatkaNadgodzin& siatka_;
};

SiatkaNadgodzin::SiatkaNadgodzin(QWidget* rodzic) : QTableView(rodzic) {
    setModel(&model_);
    setItemDelegate(new EdycjaKomorki(*this));
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                    QAbstractItemView::EditKeyPressed);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(3 * Wyglad::kSiatka);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(false);
    horizontalHeader()->setMinimumSectionSize(2 * Wyglad::kSiatka);
}

void SiatkaNadgodzin::ustaw(ListaNadgodzin* lista) {
    const bool bylaSzczegolowa = model_.szczegolowa();
    const bool bylaPusta = model_.rowCount() == 0;
    const QModelIndex tu = currentIndex();
    const std::pair miejsce(tu.row(), tu.column());
    model_.ustaw(lista);
    if (model_.rowCount() == 0) return;
    if (bylaPusta || bylaSzczegolowa != model_.szczegolowa()) {
        ustawKolumny();
        setCurrentIndex(model_.index(0, model_.kolumnaGodzin()));
    } else {
        setCurrentIndex(
            model_.index(std::clamp(miejsce.first, 0, model_.rowCount() - 1), std::max(miejsce.second, 0)));
    }
}

void SiatkaNadgodzin::ustawKolumny() {
    const QFontMetrics pismo = fontMetrics();
    const auto szerokosc = [&](int kolumna) {
        const int zNaglowkiem =
            pismo.horizontalAdvance(model_.headerData(kolumna, Qt::Horizontal, Qt::DisplayRole).toString()) +
            2 * Wyglad::kSiatka;
        switch (model_.komorka(0, kolumna).rodzaj) {
        case Rodzaj::Grupa:
            return kZnakiNazwyGrupy * pismo.averageCharWidth();
        case Rodzaj::Kwota:
            return pismo.horizontalAdvance(QStringLiteral("000000,00")) + Wyglad::kSiatka;
        case Rodzaj::Data:
        case Rodzaj::Dzien:
            return pismo.horizontalAdvance(QStringLiteral("Poniedziałek")) + Wyglad::kSiatka;
        default:
            // A caption of some length is shown whole, a very long one at least begun.
            return std::clamp(zNaglowkiem, 8 * Wyglad::kSiatka, 11 * Wyglad::kSiatka);
        }
    };
    QHeaderView& naglowki = *horizontalHeader();
    naglowki.setSectionResizeMode(QHeaderView::Interactive);
    for (int k = 0; k < model_.columnCount(); ++k) {
        setColumnWidth(k, szerokosc(k));
        if (model_.komorka(0, k).rodzaj == Rodzaj::Rownanie)
            naglowki.setSectionResizeMode(k, QHeaderView::Stretch);
    }
    naglowki.setStretchLastSection(model_.szczegolowa());
}

void SiatkaNadgodzin::wejdz() {
    if (model_.rowCount() == 0) return;
    setFocus(Qt::OtherFocusReason);
    setCurrentIndex(model_.index(0, model_.kolumnaGodzin()));
}

void SiatkaNadgodzin::commitData(QWidget* edytor) {
    QTableView::commitData(edytor);
    if (const auto blad = model_.zabierzBlad()) {
        closeEditor(edytor, QAbstractItemDelegate::RevertModelCache);
        std::rethrow_exception(blad);
    }
}

void SiatkaNadgodzin::closeEditor(QWidget* edytor, QAbstractItemDelegate::EndEditHint podpowiedz) {
    edytor_.clear();
    QTableView::closeEditor(edytor, podpowiedz);
}

void SiatkaNadgodzin::zakoncz() {
    if (!edytor_) return;
    const QPointer<QWidget> edytor = edytor_;
    commitData(edytor);
    if (edytor) closeEditor(edytor, QAbstractItemDelegate::NoHint);
}

void SiatkaNadgodzin::zatwierdz(Ruch ruch) {
    przyjeto_ = true;
    zakoncz();
    if (przyjeto_) przejdz(ruch);
}

void SiatkaNadgodzin::przejdz(Ruch ruch) {
    if (ruch == Ruch::Nastepne) return nastepneGodziny();
    const QModelIndex tu = currentIndex();
    const int wPionie = ruch == Ruch::Dol ? 1 : ruch == Ruch::Gora ? -1 : 0;
    const int wPoziomie = ruch == Ruch::Prawo ? 1 : ruch == Ruch::Lewo ? -1 : 0;
    const QModelIndex tam = tu.sibling(tu.row() + wPionie, tu.column() + wPoziomie);
    if (tam.isValid()) setCurrentIndex(tam);
}

void SiatkaNadgodzin::nastepneGodziny() {
    const QModelIndex tu = currentIndex();
    const int kolumn = model_.columnCount();
    const int komorek = model_.rowCount() * kolumn;
    for (int i = tu.row() * kolumn + tu.column() + 1; i < komorek; ++i) {
        if (model_.komorka(i / kolumn, i % kolumn).rodzaj != Rodzaj::Godziny) continue;
        return setCurrentIndex(model_.index(i / kolumn, i % kolumn));
    }
    emit koniec();
}

void SiatkaNadgodzin::keyPressEvent(QKeyEvent* zdarzenie) {
    const QModelIndex tu = currentIndex();
    switch (zdarzenie->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!tu.isValid()) break;
        return nastepneGodziny();
    case Qt::Key_Delete:
        if (!tu.isValid() || !(model_.flags(tu) & Qt::ItemIsEditable)) break;
        if (model_.komorka(tu.row(), tu.column()).rodzaj == Rodzaj::Stawka) break;
        (void)model_.setData(tu, QString(), Qt::EditRole);
        if (const auto blad = model_.zabierzBlad()) std::rethrow_exception(blad);
        return;
    default:
        break;
    }
    QTableView::keyPressEvent(zdarzenie);
}

} // namespace tornel::payroll
