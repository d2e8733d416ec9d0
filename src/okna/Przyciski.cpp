#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QCoreApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QPushButton>

namespace tornel::okna {

QPushButton* przycisk(const QString& nazwa, const QString& napis, QStringView ikona) {
    auto* nowy = new QPushButton(Wyglad::ikona(ikona), napis);
    nowy->setObjectName(nazwa);
    return nowy;
}

QPushButton* przyciskPomocy() {
    QPushButton* pomoc = przycisk(QStringLiteral("cmdPomoc"), QStringLiteral("Pomoc"), u"pomoc");
    pomoc->setAutoDefault(false);
    pomoc->setToolTip(QStringLiteral("F1"));
    // The event that stands for such a wish: no screen has to know who answers.
    QObject::connect(pomoc, &QPushButton::clicked, pomoc, [pomoc] {
        QHelpEvent zyczenie(QEvent::WhatsThis, QPoint(), QPoint());
        QCoreApplication::sendEvent(pomoc, &zyczenie);
    });
    return pomoc;
}

QWidget* rzadPrzyciskow(const QList<QPushButton*>& przyciski) {
    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addStretch();
    for (QPushButton* p : przyciski) uklad->addWidget(p);
    return rzad;
}

QWidget* przyciskiOkAnuluj(QDialog& okno, const QString& ok) {
    QPushButton* cmdOK = przycisk(QStringLiteral("cmdOK"), ok);
    QPushButton* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    QObject::connect(cmdOK, &QPushButton::clicked, &okno, &QDialog::accept);
    QObject::connect(cmdAnuluj, &QPushButton::clicked, &okno, &QDialog::reject);
    QWidget* rzad = rzadPrzyciskow({cmdOK, cmdAnuluj});
    rzad->setParent(&okno); // a button becomes the default only of the dialog that it stands in
    cmdOK->setDefault(true);
    return rzad;
}

} // namespace tornel::okna
