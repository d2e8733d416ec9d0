// Captioned fields in aligned columns, filled downwards; hidden ones leave no gap.
#pragma once
#include "common/Przestrzenie.h"
#include <QLabel>
#include <QList>
#include <QWidget>
#include <vector>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;

namespace tornel::okna {

/// Where a field without a caption of its own begins: below the other fields, or below their captions.
enum class BezPodpisu { PodPolami, PodPodpisami };

class SiatkaPol : public QWidget {
    Q_OBJECT
public:
    /// `kolumn`: how many fields with their captions stand side by side.
    explicit SiatkaPol(int kolumn, BezPodpisu bezPodpisu = BezPodpisu::PodPolami, QWidget* rodzic = nullptr);

    /// A new place for `pole` behind the others; gives its number. `podpis` null for a field that names
    /// itself.
    int dodaj(QLabel* podpis, QWidget* pole);
    /// Puts `pole` to the right of what stands at `miejsce`, or directly behind `za` among it.
    void dolacz(int miejsce, QWidget* pole, QWidget* za = nullptr);
    void pokaz(int miejsce, bool widoczne);
    /// Lays the visible places out anew; to be called once after adding, showing or hiding.
    void uloz();

    [[nodiscard]] int kolumn() const { return kolumn_; }
    /// Width that the captions of a column, from 0, ask for; those wider than `najszersze` are broken into
    /// lines of that width.
    [[nodiscard]] int szerokoscPodpisow(int kolumna, int najszersze);
    /// The least room of the captions of a column.
    void ustawSzerokoscPodpisow(int kolumna, int szerokosc);

private:
    struct Miejsce {
        QLabel* podpis;
        QWidget* pojemnik;
        QHBoxLayout* rzad;
        bool widoczne = true;
        int kolumna = 0;
    };

    int kolumn_;
    BezPodpisu bezPodpisu_;
    QGridLayout* siatka_;
    std::vector<Miejsce> miejsca_;
};

/// Gives the captions of the grids in the frames one width, column by column, so that the fields of all the
/// frames stand below each other. Captions wider than `najszersze` are broken into lines.
void wyrownajPodpisy(const QList<QGroupBox*>& ramki, int najszersze = QWIDGETSIZE_MAX);

} // namespace tornel::okna
