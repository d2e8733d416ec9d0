// The picture shown while the program starts.
#pragma once
#include <QSplashScreen>

class frmSplash : public QSplashScreen {
    Q_OBJECT
public:
    frmSplash();

protected:
    void drawContents(QPainter* malarz) override;
};
