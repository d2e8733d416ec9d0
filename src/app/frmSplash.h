// The picture shown while the program starts. It goes as soon as a window asks the clerk something, so that
// neither covers the other.
#pragma once
#include "common/Przestrzenie.h"
#include <QSplashScreen>

namespace tornel::app {

class frmSplash : public QSplashScreen {
    Q_OBJECT
public:
    frmSplash();

protected:
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;
    void drawContents(QPainter* malarz) override;
};

} // namespace tornel::app
