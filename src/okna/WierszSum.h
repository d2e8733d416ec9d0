// The line of totals under a list, each below its column wherever the clerk has moved it.
#pragma once
#include "common/Przestrzenie.h"
#include <QStringList>
#include <QWidget>

namespace tornel::okna {

class WidokListy;

class WierszSum : public QWidget {
    Q_OBJECT
public:
    /// `lista` stands above it, in the same window.
    explicit WierszSum(WidokListy& lista, QWidget* rodzic = nullptr);

    /// A text for each column of the list, empty for one without a total.
    void ustaw(const QStringList& teksty);
    [[nodiscard]] const QStringList& teksty() const { return teksty_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* zdarzenie) override;

private:
    WidokListy& lista_;
    QStringList teksty_;
};

} // namespace tornel::okna
