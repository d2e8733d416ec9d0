#include "okna/WierszSum.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QHeaderView>
#include <QPainter>

namespace tornel::okna {

namespace {

constexpr int kOdstepKolumny = 3; // as the list keeps its texts off the edges of their columns

} // namespace

WierszSum::WierszSum(WidokListy& lista, QWidget* rodzic) : QWidget(rodzic), lista_(lista) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto odswiez = [this] { update(); };
    connect(lista.header(), &QHeaderView::sectionResized, this, odswiez);
    connect(lista.header(), &QHeaderView::sectionMoved, this, odswiez);
    connect(lista.header(), &QHeaderView::geometriesChanged, this, odswiez);
}

void WierszSum::ustaw(const QStringList& teksty) {
    teksty_ = teksty;
    QStringList czytane = teksty;
    czytane.removeAll(QString());
    setAccessibleName(czytane.join(QStringLiteral(", ")));
    update();
}

QSize WierszSum::sizeHint() const { return {0, fontMetrics().height() + Wyglad::kSiatka}; }

void WierszSum::paintEvent(QPaintEvent* /*zdarzenie*/) {
    QPainter malarz(this);
    malarz.fillRect(rect(), palette().alternateBase());
    malarz.setPen(palette().color(QPalette::Mid));
    malarz.drawRect(rect().adjusted(0, 0, -1, -1));
    QFont pismo = font();
    pismo.setBold(true);
    malarz.setFont(pismo);
    malarz.setPen(palette().color(QPalette::Text));
    const int poczatek = mapFromGlobal(lista_.viewport()->mapToGlobal(QPoint())).x();
    const int ile = std::min(static_cast<int>(teksty_.size()), lista_.header()->count());
    for (int k = 0; k < ile; ++k) {
        if (lista_.header()->isSectionHidden(k)) continue;
        const QRect miejsce(poczatek + lista_.header()->sectionViewportPosition(k), 0,
                            lista_.header()->sectionSize(k), height());
        const auto wyrownanie =
            lista_.model()->headerData(k, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
        const bool prawa = wyrownanie.testFlag(Qt::AlignRight);
        malarz.drawText(miejsce.adjusted(kOdstepKolumny, 0, -kOdstepKolumny, 0),
                        Qt::AlignVCenter | (prawa ? Qt::AlignRight : Qt::AlignLeft), teksty_.at(k));
    }
}

} // namespace tornel::okna
