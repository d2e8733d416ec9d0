// The list at the left of a screen: one row chosen at a time, columns by shares of its width, a hint while
// empty.
#pragma once
#include "okna/ListaModel.h"
#include <QTreeView>

namespace tornel::okna {

class WidokListy : public QTreeView {
    Q_OBJECT
public:
    /// `udzialy`: the width of each column in percent of the list's width; the last one takes what is left.
    WidokListy(QList<KolumnaListy> kolumny, QList<int> udzialy, QWidget* rodzic = nullptr);

    /// Replaces the rows and chooses row `id`, else the first. `wybrano` is told once, and not for an empty
    /// list.
    void ustaw(QList<WierszListy> wiersze, qint64 id = -1);
    /// Chooses the row `id`; false if there is none.
    bool wybierz(qint64 id);
    /// The id of the chosen row, -1 if none is.
    [[nodiscard]] qint64 wybrany() const;
    /// The ids of all selected rows, ascending, where the selection mode allows several.
    [[nodiscard]] QList<qint64> zaznaczeni() const;
    /// What an empty list says: what to do next.
    void ustawPodpowiedz(const QString& tekst);
    [[nodiscard]] ListaModel& lista() { return model_; }

signals:
    /// Another row was chosen, by the clerk or by `ustaw`.
    void wybrano(qint64 id);
    /// Enter or a double click on the row.
    void wejscie(qint64 id);

protected:
    void currentChanged(const QModelIndex& biezacy, const QModelIndex& poprzedni) override;
    void keyPressEvent(QKeyEvent* zdarzenie) override;
    void resizeEvent(QResizeEvent* zdarzenie) override;
    void paintEvent(QPaintEvent* zdarzenie) override;

private:
    ListaModel model_;
    QList<int> udzialy_;
    QString podpowiedz_;
};

} // namespace tornel::okna
