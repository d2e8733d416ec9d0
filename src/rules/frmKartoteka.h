// The list-and-fields screen of a table with numbers of the program's own: a screen is a description and the
// rules of its table.
#pragma once
#include "okna/frmListaPol.h"
#include "rules/Kartoteka.h"

namespace tornel::rules {

class frmKartoteka : public frmListaPol {
    Q_OBJECT
protected:
    /// `kolumny`: the columns of the table that the list shows. Opens the table anew. Throws `BladBazy`.
    frmKartoteka(Otoczenie& otoczenie, const KartotekaDef& def, const OpisListyPol& opis,
                 QList<Kolumna> kolumny, QWidget* rodzic);

    [[nodiscard]] Kartoteka& kartoteka() { return kartoteka_; }

    QList<qint64> numery() override { return kartoteka_.numery(); }
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override { return kartoteka_.Ustaw(id); }
    bool zapisz(qint64 id) override;
    void porzuc() override { kartoteka_.tabela().CancelBatch(); }
    std::optional<qint64> utworz() override { return kartoteka_.Nowy(); }
    bool skasuj(qint64 id) override { return kartoteka_.Usun(id); }

private:
    Kartoteka kartoteka_;
    QList<Kolumna> kolumny_;
};

} // namespace tornel::rules
