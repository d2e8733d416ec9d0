// The frames of fields of a screen as a table: what stands in which frame on which tab.
#pragma once
#include "okna/Wiazanie.h"
#include <QStringList>

class QScrollArea;
class QTabWidget;
class QVBoxLayout;

namespace tornel::okna {

/// Fields in one titled frame.
struct GrupaPol {
    QString tytul;
    QList<Pole> pola;
    int kolumn = 1;        ///< how many fields stand side by side
    QString zakladka = {}; ///< caption of its tab; empty on a screen without tabs
    /// With headings the frame is a table, and `rzedy` are its fields.
    QStringList naglowki = {};
    QList<Wiazanie::Rzad> rzedy = {};
};

/// The names of the fields that can be typed into, in their order.
[[nodiscard]] QStringList PolaDoWpisania(const QList<GrupaPol>& grupy);

/// Makes the frames and puts them into `uklad`; captions wider than `najszerszePodpisy` (0 for no bound) are
/// broken into lines. True if a note among the fields takes the height that is left.
bool UstawRamki(Wiazanie& wiazanie, QVBoxLayout& uklad, const QList<GrupaPol>& grupy,
                int najszerszePodpisy = 0);
/// Makes the frames on tabs, which scroll page by page. `nazwa` is the objectName of the tabs.
[[nodiscard]] QTabWidget* ZakladkiPol(Wiazanie& wiazanie, const QString& nazwa, const QList<GrupaPol>& grupy,
                                      int najszerszePodpisy = 0);
/// Fields that may be taller than the window, never wider.
[[nodiscard]] QScrollArea* Przewijane(QWidget* pola);

} // namespace tornel::okna
