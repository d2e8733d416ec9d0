#include "app/frmInform.h"
#include "okna/Wyglad.h"
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace tornel::app {

frmInform::frmInform(QWidget* rodzic)
    : QDialog(rodzic, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setObjectName(QStringLiteral("frmInform"));
    setWindowTitle(QStringLiteral("Aktualizer"));
    auto* labInform = new QLabel(QStringLiteral("Trwa aktualizowanie bazy danych. Proszę czekać."));
    labInform->setObjectName(QStringLiteral("labInform"));
    labInform->setAlignment(Qt::AlignCenter);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(4 * Wyglad::kSiatka, 4 * Wyglad::kSiatka, 4 * Wyglad::kSiatka,
                              4 * Wyglad::kSiatka);
    uklad->addWidget(labInform);
}

void frmInform::pokaz() {
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace tornel::app
