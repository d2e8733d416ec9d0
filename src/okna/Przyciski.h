// Rows of buttons at the bottom right of screens and dialogs.
#pragma once
#include "common/Przestrzenie.h"
#include <QList>
#include <QString>
#include <QStringView>

class QDialog;
class QPushButton;
class QWidget;

namespace tornel::okna {

/// A button with its name and caption (mnemonic included), and a picture if `ikona` names one.
[[nodiscard]] QPushButton* przycisk(const QString& nazwa, const QString& napis, QStringView ikona = {});

/// `cmdPomoc` "Pomoc", which asks for the page of the handbook about its screen, as F1 does. Never the
/// default.
[[nodiscard]] QPushButton* przyciskPomocy();

/// The buttons in one row at the right, in the order given.
[[nodiscard]] QWidget* rzadPrzyciskow(const QList<QPushButton*>& przyciski);

/// `cmdOK` with the caption `ok`, the default button, which accepts the dialog, and `cmdAnuluj` "&Anuluj",
/// which rejects it as Escape does.
[[nodiscard]] QWidget* przyciskiOkAnuluj(QDialog& okno, const QString& ok);

} // namespace tornel::okna
