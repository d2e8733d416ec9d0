// The list at the left of a screen: one row chosen at a time, columns by shares of its width, in an order and
// a choice of the clerk's, sorted by any of them, filtered, copied, printed, with a hint while empty.
#pragma once
#include "okna/ListaModel.h"
#include <QTreeView>

namespace tornel::okna {

/// Whether the clerk may sort and copy the rows; a small table of sums only shows them.
enum class RolaListy { Lista, Tabliczka };

/// Keys: Ctrl+A marks all rows, Ctrl+C copies the marked ones as a table, Ctrl+1 to Ctrl+9 sort by a column
/// as a click on its header does: ascending, descending, as the screen gave them. The right button or the
/// menu key opens its menu (`MenuListy`), on the header that of its columns.
class WidokListy : public QTreeView {
    Q_OBJECT
public:
    /// `udzialy`: the width of each column in percent of the list's width; the last one takes what is left.
    WidokListy(QList<KolumnaListy> kolumny, QList<int> udzialy, QWidget* rodzic = nullptr);

    /// Replaces the rows and chooses row `id`, else the first; the rows marked beside it stay marked.
    /// `wybrano` is told once, and not for an empty list. A filter that would hide the row goes.
    void ustaw(QList<WierszListy> wiersze, qint64 id = -1);
    /// Chooses the row `id`; false if there is none. A filter that hides it goes.
    bool wybierz(qint64 id);
    /// Shows only the rows that fit and tells how many they are. Where none fits, or the condition is empty,
    /// the list stays as it is, or shows all. The chosen row stays the chosen one while it is seen; nothing
    /// is told.
    int filtruj(const ListaModel::Warunek& warunek);
    /// Takes the filter off, as for a command that means the whole list.
    void pokazWszystkie();
    /// The row to choose once `id` is gone: the one below it, else the one above; -1 for none.
    [[nodiscard]] qint64 sasiad(qint64 id) const;
    void ustawRole(RolaListy rola);
    /// Orders the rows as `ListaModel::sort` does; marked and chosen rows stay so.
    void sortuj(int kolumna, Qt::SortOrder kierunek);
    /// The numbers of the columns that are seen, from left to right.
    [[nodiscard]] QList<int> widoczneKolumny() const;
    /// Shows or hides a column; the last one that is seen stays.
    void pokazKolumne(int kolumna, bool pokaz);
    /// The columns from left to right, a hidden one as -1 - its number.
    [[nodiscard]] QList<int> ukladKolumn() const;
    /// An order and choice as `ukladKolumn` gave them; others are left aside.
    void ustawUkladKolumn(const QList<int>& uklad);
    /// The marked rows below their headings, in the order seen, tabs between the columns that are seen.
    [[nodiscard]] QString zaznaczoneJakoTekst() const;
    /// Puts them on the clipboard.
    void kopiuj() const;
    [[nodiscard]] const QList<int>& udzialy() const { return udzialy_; }
    /// Shares as `udzialy` gave them; others are left aside.
    void ustawUdzialy(const QList<int>& udzialy);
    /// The id of the chosen row, -1 if none is.
    [[nodiscard]] qint64 wybrany() const;
    /// The ids of all selected rows, ascending, where the selection mode allows several.
    [[nodiscard]] QList<qint64> zaznaczeni() const;
    /// What an empty list says: what to do next.
    void ustawPodpowiedz(const QString& tekst);
    [[nodiscard]] ListaModel& lista() { return model_; }
    [[nodiscard]] const ListaModel& lista() const { return model_; }
    [[nodiscard]] RolaListy rola() const { return rola_; }

signals:
    /// Another row was chosen, by the clerk or by `ustaw`.
    void wybrano(qint64 id);
    /// Enter or a double click on the row.
    void wejscie(qint64 id);
    /// A filter went that nobody has emptied.
    void filtrZdjety();

protected:
    void currentChanged(const QModelIndex& biezacy, const QModelIndex& poprzedni) override;
    void keyPressEvent(QKeyEvent* zdarzenie) override;
    void resizeEvent(QResizeEvent* zdarzenie) override;
    void paintEvent(QPaintEvent* zdarzenie) override;
    void contextMenuEvent(QContextMenuEvent* zdarzenie) override;

private:
    void zaznacz(const QList<qint64>& numery);
    void ustawBiezacy(qint64 id);
    void sortujKolejno(int kolumna);
    void rozlozKolumny();
    void przyjmijSzerokosc();

    ListaModel model_;
    QList<int> udzialy_;
    QString podpowiedz_;
    RolaListy rola_ = RolaListy::Lista;
    bool rozklada_ = false; ///< the widths of columns are being set by the shares
};

} // namespace tornel::okna
