// The mark of a field whose value is not stored yet: a bar along its left edge.
#pragma once
#include "common/Przestrzenie.h"
#include <QWidget>

namespace tornel::okna {

/// It lies over the field and takes no room, so that nothing moves when it comes and goes.
class ZnakZmiany : public QWidget {
    Q_OBJECT
public:
    /// Marks the field, or takes the mark away.
    static void ustaw(QWidget& pole, bool zmienione);
    [[nodiscard]] static bool jest(const QWidget& pole);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    explicit ZnakZmiany(QWidget& pole);
};

} // namespace tornel::okna
