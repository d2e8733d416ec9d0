// "Podgląd kolekcji": any collection of the insurer's documents, each line with what it means.
#pragma once
#include "okna/Okno.h"
#include "zus/ModelKedu.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::zus {

/// Keys: Ctrl+O opens a file, Ctrl+F goes to the search, F3 finds the next place, Ctrl+P prints.
class frmKedu : public Okno {
    Q_OBJECT
public:
    using WybierzPlik = std::function<QString(QWidget* rodzic, const QString& folder)>;
    using Wydrukuj =
        std::function<void(std::shared_ptr<const OdczytKedu> kolekcja, const QString& plik, QWidget* rodzic)>;

    /// Opens `plik`, if one is named. `folder`: where the choice of a file begins.
    frmKedu(Rozmowa& rozmowa, const QString& folder, const QString& plik, Wydrukuj wydrukuj = {},
            QWidget* rodzic = nullptr, WybierzPlik wybierz = {});

    /// Shows the file. False, after a message, when it cannot be read: what was shown stays.
    bool otworz(const QString& plik);

private:
    void budujSkroty();
    void wybierzPlik();
    void szukaj();
    void drukuj();

    Rozmowa& rozmowa_;
    QString folder_, plik_;
    Wydrukuj wydrukuj_;
    WybierzPlik wybierz_;
    std::shared_ptr<const OdczytKedu> kolekcja_;
    ModelKedu model_;
    QTreeView* tvwKolekcja_;
    QLineEdit* txtSzukaj_;
    QLabel *labPlik_, *labWynik_, *labUwagi_;
    QPushButton *cmdPlik_, *cmdDrukuj_;
};

} // namespace tornel::zus
