// "Lista umów o pracę": the employment contracts of all employees.
#pragma once
#include "okna/frmListaPol.h"
#include "personnel/PortUmowOPrace.h"
#include <QHash>

class QComboBox;

namespace tornel::personnel {

class frmUmoP : public frmListaPol {
    Q_OBJECT
public:
    /// Opens `UMOP` and `M_PRACY` on the session's handles. Without `druk` nothing is printed. Throws
    /// `BladBazy`, `UszkodzonaWartosc`.
    explicit frmUmoP(Otoczenie& otoczenie, QWidget* rodzic = nullptr, DrukUmowyOPrace druk = {});

    /// Stores a changed row and prints the paper of it, or says why there is none.
    void drukuj(PismoOPrace pismo);

protected:
    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override { return umowy_->Ustaw(id); }
    bool zapisz(qint64 id) override;
    void porzuc() override { umowy_->Porzuc(); }
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override { return umowy_->Usun(id); }
    void pokazano(qint64 id) override;

private:
    frmUmoP(Otoczenie& otoczenie, std::shared_ptr<UmowyOPrace> umowy, const OpisListyPol& opis,
            QWidget* rodzic, DrukUmowyOPrace druk);
    void budujFiltr();
    void budujDruk();
    void wypelnijOsoby(const QList<UmowaOPrace>& umowy);
    void filtruj();
    /// Takes the filter off when it would hide the row.
    void odslon(qint64 id);
    void zmienWarunki();
    void doKartoteki();
    /// Who it is, what should be looked at, and what the fields of a change of terms are not for.
    void opiszWiersz(const UmowaOPrace& umowa);
    [[nodiscard]] QStringList zdaniaOKartotece(const UmowaOPrace& umowa) const;
    /// The last day that follows from the notice in the fields, into its field while that is empty.
    void uzupelnijKoniec(const QString& pole);
    void pokazOkres();
    /// The row as its fields say it now.
    [[nodiscard]] UmowaOPrace zPol() const;

    Otoczenie& o_;
    std::shared_ptr<UmowyOPrace> umowy_;
    DrukUmowyOPrace druk_;
    FiltrUmowOPrace filtr_;
    QHash<qint64, UmowaOPrace> linie_; ///< those shown
    QComboBox *cboOsoba_, *cboRodzaj_, *cboKoncza_;
    QPushButton *cmdZmiana_, *cmdKartoteka_, *cmdDrukuj_;
    QLabel *labOsoba_, *labIle_, *labUwagi_, *labOkres_;
};

} // namespace tornel::personnel
