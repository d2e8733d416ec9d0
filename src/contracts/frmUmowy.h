// The screens of contracts, `frmUZL`, `frmUOD` and `frmHON`: one, told apart by its kind.
#pragma once
#include "bank/frmDrukPrzelewow.h"
#include "contracts/frmUmowyTabele.h"
#include "contracts/PortWydrukowUmow.h"
#include "contracts/Umowy.h"
#include <QHash>

class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;

namespace tornel::contracts {

/// What the screen gets from outside: a print or a transfer that is not given is not offered.
struct PortyUmow {
    PortWydrukowUmow wydruki = {};
    bank::UlozeniePrzelewow przelewy = {};
};

class frmUmowy : public frmListaPol {
    Q_OBJECT
public:
    /// Opens the kind's table on the session's handle. Throws `BladBazy`, `UszkodzonaWartosc`.
    frmUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, QWidget* rodzic = nullptr,
             PortyUmow porty = {});

    /// Does what the entry of the menu of prints says, after a changed row was stored.
    void drukuj(DrukUmow co);

protected:
    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override;
    bool zapisz(qint64 id) override;
    void porzuc() override;
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override;
    qint64 poUsunieciu(qint64 id) override;
    void pokazano(qint64 id) override;

private:
    frmUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, std::shared_ptr<Umowy> umowy,
             const OpisListyPol& opis, QWidget* rodzic, PortyUmow porty);
    void budujFiltr();
    void budujDruk();
    void podlaczPola();
    /// The keyboard goes through the rates and then through the amounts: leaving a field computes what
    /// follows from it, typed or not, so whoever goes on by Tab loses no amount that he has typed over.
    void ustawKolejnosc();
    /// Whether the entry can be offered at all.
    [[nodiscard]] bool dostepny(DrukUmow co) const;

    /// Shows or hides the fields and the entry of MultiCash, as constant 600 says.
    void ShowMCS(bool pokaz);
    [[nodiscard]] Wiazanie::Sprawdzony opuszczono(const PoleUmowy& pole, const QString& tekst,
                                                  const QString& bylo);
    [[nodiscard]] RachunekUmowy zPol() const;
    void filtruj();
    /// The years and persons to choose from.
    void wypelnijFiltr(const QList<LiniaUmowy>& umowy);
    /// Takes the filter off when it would hide the contract.
    void odslon(qint64 id);
    [[nodiscard]] std::optional<QDate> dataUmowy();
    void kopiuj();
    void pokazSumy();
    void pokazPrzypomnienie();
    void przelewyOkresu(bank::KomuPrzelew komu);
    void rachunek();
    void zestawienie();

    Otoczenie& o_;
    const RodzajUmowy& rodzaj_;
    const EkranUmow& ekran_;
    std::shared_ptr<Umowy> umowy_;
    PortyUmow porty_;
    FiltrUmow filtr_;
    QHash<qint64, LiniaUmowy> linie_; ///< those shown
    QComboBox *cboRok_, *cboOsoba_;
    QCheckBox* chkNiewyplacone_;
    QPushButton *cmdKopia_, *cmdDrukuj_;
    QLabel *labOsoba_, *labSumy_, *labPrzypomnienie_;
    QString zgubionyPrzelew_; ///< what a calculation has just taken from the transfer field
};

} // namespace tornel::contracts
