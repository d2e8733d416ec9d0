// The handbook: its contents at the left, its text with search at the right.
#pragma once
#include "common/Przestrzenie.h"
#include "okna/Okno.h"
#include <QHash>
#include <QTextDocument>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace tornel::okna {

/// Never modal: the screen below it stays in work. Keys: Ctrl+F finds, Enter or F3 the next place, Shift+F3
/// the one before, Alt+Left and Alt+Right go through the pages read, Escape closes.
class frmPomoc : public Okno {
    Q_OBJECT
public:
    /// `podrecznik`: HTML. Headings of the first three levels that have an id make the contents: chapters,
    /// pages and sections.
    explicit frmPomoc(const QString& podrecznik, QWidget* rodzic = nullptr);

    /// Shows the chapter, page or section with this id; false if there is none.
    bool pokazTemat(const QString& temat);
    /// The id of what was shown last.
    [[nodiscard]] QString temat() const;

private:
    void buduj();
    [[nodiscard]] QWidget* rzadSzukania();
    void wczytaj(const QString& podrecznik);
    void budujSpis();
    void budujSkroty();
    /// What stands under a heading that was jumped to.
    void przyjmijTemat(const QString& temat);
    /// Marks in the contents under what heading this place of the text stands.
    void zaznaczWSpisie(int miejsce);
    void zaznacz(QTreeWidgetItem* pozycja);
    void szukaj(QTextDocument::FindFlags kierunek);

    QLineEdit* txtSzukaj_;
    QLabel* labSzukaj_;
    QTreeWidget* lstSpis_;
    QTextBrowser* txtPomoc_;
    QPushButton *cmdWstecz_, *cmdDalej_, *cmdPoprzednie_, *cmdNastepne_;
    QHash<QString, QTreeWidgetItem*> tematy_;
    QList<QTreeWidgetItem*> poKolei_; ///< in the order of the text
};

} // namespace tornel::okna
