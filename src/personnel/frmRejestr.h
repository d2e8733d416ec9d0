// The list-and-fields screen of a register of absences: a screen is a description and its register.
#pragma once
#include "okna/frmListaPol.h"
#include "personnel/RejestrNieobecnosci.h"
#include <functional>
#include <QHash>
#include <span>

namespace tornel::personnel {

/// Computed values of a register's screen, by `Pole::klucz`.
using WartosciObliczane = std::function<Wartosc(int klucz)>;

class frmData;

class frmRejestr : public frmListaPol {
    Q_OBJECT
public:
    /// What both registers have alike: columns and width of the list, the quick find.
    [[nodiscard]] static OpisListyPol opisListy();
    /// The group of whose absence it is and when; nothing of it can be typed. `podNazwiskiem` and `podDatami`
    /// stand below in the two columns.
    [[nodiscard]] static GrupaPol grupaOkresu(const TabelaDef& tabela, const QList<Pole>& podNazwiskiem,
                                              const QList<Pole>& podDatami);

protected:
    /// The register is shared with the screen that made it. `obliczane` gives the fields that no column
    /// holds; it is asked only while a row is taken up.
    frmRejestr(Otoczenie& otoczenie, std::shared_ptr<RejestrNieobecnosci> rejestr,
               WartosciObliczane obliczane, const OpisListyPol& opis, QWidget* rodzic);

    /// The kinds to choose from at a registration.
    [[nodiscard]] virtual std::span<const QStringView> rodzaje() const { return {}; }
    /// Registers what the dialog gave; nothing when it is refused.
    [[nodiscard]] virtual std::optional<qint64> Zarejestruj(qint64 prcId, const frmData& dane) = 0;

    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override;
    bool zapisz(qint64 id) override;
    void porzuc() override { rejestr_->tabela().CancelBatch(); }
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override;

private:
    Otoczenie& o_;
    std::shared_ptr<RejestrNieobecnosci> rejestr_;
    QHash<qint64, WierszRejestru> wiersze_;
};

} // namespace tornel::personnel
