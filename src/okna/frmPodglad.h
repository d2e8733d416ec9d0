// The preview of a print: its pages, search, printing, saving.
#pragma once
#include "okna/Drukowanie.h"
#include "okna/WidokStrony.h"
#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::okna {

/// Keys: Page Up and Page Down, Home and End, Ctrl+F and F3, Ctrl+plus and Ctrl+minus, Ctrl+P prints, Ctrl+S
/// saves a PDF, Ctrl+C copies the page's picture and text, Escape closes.
class frmPodglad : public QDialog {
    Q_OBJECT
public:
    frmPodglad(std::shared_ptr<const Uklad> uklad, Rozmowa& rozmowa, QWidget* rodzic = nullptr,
               PoWydaniu poWydaniu = {});

    /// Writes the PDF to the file, with progress. False after a message when it cannot be written.
    bool zapiszPdf(const QString& plik);
    /// Writes the rows to the file. False after a message.
    bool zapiszCsv(const QString& plik);

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override;

private:
    [[nodiscard]] QWidget* pasek();
    [[nodiscard]] QWidget* dol();
    void budujSkroty();
    void pokazano(int strona);
    void szukaj();
    void zmienPowiekszenie(int krok);
    void kopiuj();
    void drukuj();
    void wybierzPlik(const QString& rozszerzenie, const QString& opis,
                     bool (frmPodglad::*zapisz)(const QString&));

    std::shared_ptr<const Uklad> uklad_;
    Rozmowa& rozmowa_;
    PoWydaniu poWydaniu_;
    WidokStrony* widok_;
    QSpinBox* numStrona_;
    QComboBox* cboPowiekszenie_;
    QLineEdit* txtSzukaj_;
    QLabel* labWynik_;
};

} // namespace tornel::okna
