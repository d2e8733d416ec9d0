// "Dziennik zmian": who changed what and when, and each value before and after.
#pragma once
#include "okna/Okno.h"
#include "rules/Otoczenie.h"
#include "store/Dziennik.h"
#include <functional>

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace tornel::okna {
class PoleDaty;
class PoleTekstu;
class WidokListy;
} // namespace tornel::okna

namespace tornel::app {

class frmDziennik : public Okno {
    Q_OBJECT
public:
    /// Asks where the CSV file goes; empty for nowhere. Tests choose by themselves.
    using WybierzPlik = std::function<QString(QWidget* rodzic)>;

    /// Shows the entries that the user at work may see. Throws `BladBazy`.
    explicit frmDziennik(Otoczenie& otoczenie, QWidget* rodzic = nullptr, WybierzPlik wybierz = {});

protected:
    [[nodiscard]] bool cofaCzynnosci() const override { return true; }
    void wczytajPonownie() override { szukaj(); }

private:
    void budujFiltr(QGridLayout& uklad);
    [[nodiscard]] QWidget* listy();
    [[nodiscard]] QWidget* przyciski();
    void wypelnijWybory();
    /// What the filter says; nothing when a field of it cannot be understood, which the field tells.
    [[nodiscard]] std::optional<SzukaneWpisy> filtr();
    void szukaj();
    void pokaz(const SzukaneWpisy& szukane);
    void wyczyscFiltr();
    void pokazZmiany(qint64 id);
    void zapiszCsv();
    void drukuj();
    void przytnij();

    Otoczenie& o_;
    WybierzPlik wybierz_;
    QList<WpisDziennika> wpisy_;
    PoleDaty *dtOd_, *dtDo_;
    QComboBox *cboKto_, *cboTabela_;
    PoleTekstu *txtOsoba_, *txtTekst_;
    QLabel *labIle_, *labZmiany_;
    WidokListy *lvwWpisy_, *lvwZmiany_;
    QPushButton *cmdSzukaj_, *cmdWyczysc_, *cmdCSV_, *cmdDrukuj_, *cmdPrzytnij_;
};

} // namespace tornel::app
