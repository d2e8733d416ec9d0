// The grid of one person's overtime: a table that is filled by the keyboard alone.
#pragma once
#include "payroll/nadgodziny/frmNadgModel.h"
#include <QPointer>
#include <QTableView>

namespace tornel::payroll {

/// Typing starts editing; Enter stores and goes on to the next hours, Tab and the vertical arrows to the
/// neighbouring cell; Escape takes back what was typed, Delete empties the cell.
class SiatkaNadgodzin : public QTableView {
    Q_OBJECT
public:
    explicit SiatkaNadgodzin(QWidget* rodzic = nullptr);

    void ustaw(ListaNadgodzin* lista);
    [[nodiscard]] ModelNadgodzin& nadgodziny() { return model_; }
    /// Goes to the first hours.
    void wejdz();
    /// Stores what is being typed. Throws what the storing throws.
    void zakoncz();

signals:
    /// Enter on the last hours: there is nowhere to go on to.
    void koniec();

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override;
    void commitData(QWidget* edytor) override;
    void closeEditor(QWidget* edytor, QAbstractItemDelegate::EndEditHint podpowiedz) override;

private:
    friend class EdycjaKomorki;
    enum class Ruch { Nastepne, Gora, Dol, Lewo, Prawo };
    void zatwierdz(Ruch ruch);
    void przejdz(Ruch ruch);
    void nastepneGodziny();
    void ustawKolumny();

    ModelNadgodzin model_;
    QPointer<QWidget> edytor_;
    bool przyjeto_ = true;
};

} // namespace tornel::payroll
