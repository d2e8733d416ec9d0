// A dialog in which some of a list's entries are chosen, all of them at first.
#pragma once
#include "okna/Okno.h"
#include <QList>
#include <QStringList>

class QLabel;
class QPushButton;

namespace tornel::okna {

class WidokListy;

/// What the dialog shows; the entries have a text for each column.
struct OpisWyboru {
    QString nazwa; ///< objectName of the screen
    QString tytul;
    QString lista; ///< objectName of the list
    QStringList kolumny;
    QString pustaLista; ///< what an empty list says
};

class WyborWielu : public Okno {
    Q_OBJECT
public:
    /// Places in the list of those chosen, ascending. Meaningful once the dialog was accepted.
    [[nodiscard]] QList<int> wybrane() const;
    [[nodiscard]] bool wszystkie() const;

protected:
    WyborWielu(const OpisWyboru& opis, const QList<QStringList>& wpisy, QWidget* rodzic);

private:
    void pokazIle();

    WidokListy* lista_;
    QLabel* labZaznaczono_;
    QPushButton* cmdOK_ = nullptr;
    int ile_;
};

} // namespace tornel::okna
