// One tab of the constants: its frames in rows and columns, the help on formulas beside them.
#pragma once
#include "common/Przestrzenie.h"
#include <QLabel>

class QScrollArea;

namespace tornel::okna {
class Wiazanie;
} // namespace tornel::okna

namespace tornel::rules {

enum class KartaStalych;

/// A note that is cut with an ellipsis to the room it has: the name of a component.
class OpisPola : public QLabel {
    Q_OBJECT
public:
    explicit OpisPola(const QString& nazwa);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* zdarzenie) override;
};

/// Builds the fields of the tab and shows no value in them. It scrolls only where the window is too small.
[[nodiscard]] QScrollArea* zbudujKarte(KartaStalych karta, Wiazanie& wiazanie);

/// The captions of the three rows of overtime boxes: by days, or by groups where the last two boxes of the
/// third row are of no use and go.
void NadgSzczeg(Wiazanie& wiazanie, bool szczegolowa);

} // namespace tornel::rules
