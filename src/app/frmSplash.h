// The picture shown while the program starts.
#pragma once
#include "common/Przestrzenie.h"
#include <QSplashScreen>

namespace tornel::app {

class frmSplash : public QSplashScreen {
    Q_OBJECT
public:
    frmSplash();

protected:
    void drawContents(QPainter* malarz) override;
};

} // namespace tornel::app
