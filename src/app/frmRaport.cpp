#include "app/frmRaport.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::app {

frmRaport::frmRaport(const QString& plik, const QString& tekst, QWidget* rodzic)
    : Okno(QStringLiteral("frmRaport"), rodzic) {
    setWindowTitle(QStringLiteral("Raport z aktualizacji bazy danych"));
    auto* labPlik = new QLabel(QStringLiteral("Plik: ") + plik);
    labPlik->setObjectName(QStringLiteral("labPlik"));
    labPlik->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* txtRaport = new QPlainTextEdit(tekst);
    txtRaport->setObjectName(QStringLiteral("txtRaport"));
    txtRaport->setAccessibleName(QStringLiteral("Treść raportu"));
    txtRaport->setReadOnly(true);
    txtRaport->setTabChangesFocus(true);
    txtRaport->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* cmdZamknij = przycisk(QStringLiteral("cmdZamknij"), QStringLiteral("&Zamknij"));
    connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::accept);
    cmdZamknij->setDefault(true);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(labPlik);
    uklad->addWidget(txtRaport, 1);
    uklad->addWidget(rzadPrzyciskow({cmdZamknij, przyciskPomocy()}));
    resize(90 * Wyglad::kSiatka, 60 * Wyglad::kSiatka);
}

} // namespace tornel::app
