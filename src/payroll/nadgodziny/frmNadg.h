// Overtime lists: the months, the persons of a month, the hours of a person with their amounts and sums.
#pragma once
#include "okna/Okno.h"
#include "payroll/nadgodziny/ListaNadgodzin.h"
#include "payroll/nadgodziny/Nadgodziny.h"
#include "rules/Otoczenie.h"
#include <memory>
#include <optional>

class QLabel;
class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::payroll {

class SiatkaNadgodzin;

class frmNadg : public Okno {
    Q_OBJECT
public:
    /// Opens the overtime months anew and shows the last one. Throws `BladBazy`.
    explicit frmNadg(Otoczenie& otoczenie, QWidget* rodzic = nullptr);
    ~frmNadg() override;

protected:
    /// Stores the cell in work first; the screen stays open when that fails.
    [[nodiscard]] bool moznaZamknac() override;
    void pokazPonownie() override;
    [[nodiscard]] bool cofaCzynnosci() const override { return true; }

private:
    void budujPrzyciski();
    void polacz();
    [[nodiscard]] QWidget* lewaStrona();
    [[nodiscard]] QWidget* prawaStrona();

    void pokazListe(std::optional<RokMies> zaznacz = {});
    void pokazMiesiac(std::optional<RokMies> miesiac);
    void pokazOsoby(qint64 zaznacz = -1);
    void WypiszNadgodziny(qint64 prcId);
    void pokazSumy();
    void pokazRownania();
    void ustawDostepnosc();

    void NowaLista();
    void UsunListe();
    void NowaOsoba();
    void UsunOsobe();
    void przeniesStawke();
    void odswiez();

    Otoczenie& o_;
    Nadgodziny nadgodziny_;
    std::unique_ptr<ListaNadgodzin> lista_; ///< the month shown, none without one
    WidokListy *lvwLista_, *lvwOsoby_, *lvwSumy_, *lvwRownania_;
    SiatkaNadgodzin* siatka_;
    QLabel *labOsoba_, *labIleOsob_;
    QPushButton *cmdNowaLista_, *cmdUsunListe_, *cmdNowaOsoba_, *cmdUsunOsobe_, *cmdOdswiez_, *cmdAnuluj_,
        *cmdStawka_;
};

} // namespace tornel::payroll
