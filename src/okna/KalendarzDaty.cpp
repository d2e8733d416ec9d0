#include "okna/KalendarzDaty.h"
#include "common/Daty.h"
#include <algorithm>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QScreen>

namespace tornel::okna {

namespace {

class KalendarzDaty : public QCalendarWidget {
public:
    KalendarzDaty(QLineEdit& pole, QDate dzien) : QCalendarWidget(&pole), pole_(pole) {
        setObjectName(QStringLiteral("kalendarz"));
        setWindowFlag(Qt::Popup);
        setAttribute(Qt::WA_DeleteOnClose);
        setLocale(QLocale(QLocale::Polish));
        setFirstDayOfWeek(Qt::Monday);
        setVerticalHeaderFormat(NoVerticalHeader);
        setGridVisible(true);
        setDateRange(QDate(1900, 1, 1), QDate(2100, 12, 31)); // what the field takes
        setSelectedDate(dzien);
        connect(this, &QCalendarWidget::activated, this, &KalendarzDaty::przyjmij);
        connect(this, &QCalendarWidget::clicked, this, &KalendarzDaty::przyjmij);
    }

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override {
        if (zdarzenie->key() == Qt::Key_Escape || zdarzenie->key() == Qt::Key_F4)
            close();
        else
            QCalendarWidget::keyPressEvent(zdarzenie);
    }

private:
    void przyjmij(QDate dzien) {
        if (!isVisible()) return; // a click is told twice
        close();
        // As typed: the field's owner hears of it, and undo brings back what stood there.
        pole_.selectAll();
        pole_.insert(FormatDaty(dzien));
    }

    QLineEdit& pole_;
};

} // namespace

void OtworzKalendarz(QLineEdit& pole, QDate wstepna) {
    auto* kalendarz = new KalendarzDaty(pole, CzytajWpisanaDate(pole.text()).value_or(wstepna));
    const QSize rozmiar = kalendarz->sizeHint();
    const QRect ekran = pole.screen()->availableGeometry();
    QPoint rog = pole.mapToGlobal(QPoint(0, pole.height()));
    if (rog.y() + rozmiar.height() > ekran.bottom())
        rog.setY(pole.mapToGlobal(QPoint()).y() - rozmiar.height());
    rog.setX(std::min(rog.x(), ekran.right() - rozmiar.width()));
    kalendarz->move(rog);
    kalendarz->show();
    kalendarz->setFocus(Qt::PopupFocusReason);
}

} // namespace tornel::okna
