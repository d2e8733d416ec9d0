// "Dni wolne pracowników": the calendars of the employees that have one of their own.
#pragma once
#include "personnel/frmKalendarz.h"

namespace tornel::personnel {

class frmDniWolnePr : public frmKalendarz {
    Q_OBJECT
public:
    explicit frmDniWolnePr(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

protected:
    [[nodiscard]] qint64 czyj() const override;
    [[nodiscard]] bool jestKomu() override;
    void pokazano(const std::optional<MiesiacKalendarza>& miesiac) override;
    void odswiez(const MiesiacKalendarza& zaznacz) override;
    void cofnijListy() override;

private:
    frmDniWolnePr(Otoczenie& otoczenie, QWidget* rodzic, QPushButton* nowyPrac, QPushButton* usunPrac);

    /// Fills the list of employees and shows `prcId`, else the first, with the month `zaznacz` if there is.
    void WczytajPracownikow(qint64 prcId, std::optional<MiesiacKalendarza> zaznacz);
    void wybierzPracownika(qint64 prcId);
    void nowyPracownik();
    void usunPracownika();

    WidokListy* lvwPrac_;
    QPushButton* cmdUsunPrac_;
    std::optional<MiesiacKalendarza> zaznacz_; ///< the month to show with the next employee
};

} // namespace tornel::personnel
