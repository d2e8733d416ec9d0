// Captioned fields in aligned columns, filled downwards; hidden ones leave no gap.
#pragma once
#include <QLabel>
#include <QWidget>
#include <vector>

class QGridLayout;
class QHBoxLayout;

class SiatkaPol : public QWidget {
    Q_OBJECT
public:
    /// `kolumn`: how many fields with their captions stand side by side.
    explicit SiatkaPol(int kolumn, QWidget* rodzic = nullptr);

    /// A new place for `pole` behind the others; gives its number. `podpis` null for a field that names
    /// itself.
    int dodaj(QLabel* podpis, QWidget* pole);
    /// Puts `pole` to the right of what stands at `miejsce`, or directly behind `za` among it.
    void dolacz(int miejsce, QWidget* pole, QWidget* za = nullptr);
    void pokaz(int miejsce, bool widoczne);
    /// Lays the visible places out anew; to be called once after adding, showing or hiding.
    void uloz();

private:
    struct Miejsce {
        QLabel* podpis;
        QWidget* pojemnik;
        QHBoxLayout* rzad;
        bool widoczne = true;
    };

    int kolumn_;
    QGridLayout* siatka_;
    std::vector<Miejsce> miejsca_;
};
