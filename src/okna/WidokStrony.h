// One page of a print on screen, as paper on the grey of the desk.
#pragma once
#include "druk/Uklad.h"
#include <QScrollArea>

namespace tornel::okna {

/// How large a page is shown.
enum class Powiekszenie { SzerokoscStrony, CalaStrona, Swobodne };

class WidokStrony : public QScrollArea {
    Q_OBJECT
public:
    explicit WidokStrony(std::shared_ptr<const Uklad> uklad, QWidget* rodzic = nullptr);

    [[nodiscard]] int strona() const { return strona_; }
    /// Shows a page, counted from 0, from its top; a number out of range goes to the nearest one.
    void pokazStrone(int strona);
    /// `procent` of the paper's size, for `Swobodne`.
    void powieksz(Powiekszenie jak, int procent = 100);
    /// The present size in percent.
    [[nodiscard]] int procent() const;

signals:
    void pokazano(int strona);

protected:
    void resizeEvent(QResizeEvent* zdarzenie) override;
    void keyPressEvent(QKeyEvent* zdarzenie) override;

private:
    class Papier;
    void dopasuj();
    /// A screen further; past the end of the page to the next one.
    void przewin(int kierunek);

    std::shared_ptr<const Uklad> uklad_;
    Papier* papier_;
    int strona_ = 0;
    Powiekszenie jak_ = Powiekszenie::SzerokoscStrony;
    double skala_ = 1;
};

} // namespace tornel::okna
