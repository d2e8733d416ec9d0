// "Lista użytkowników": the administrator's list of users with their passwords and rights.
#pragma once
#include "app/ListaUzytkownikow.h"
#include "okna/frmListaPol.h"

namespace tornel::app {

class frmLogLista : public frmListaPol {
    Q_OBJECT
public:
    explicit frmLogLista(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

protected:
    /// The users in table order; a row's id is its place in that order.
    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override { return {nazwy_.at(id)}; }
    bool przejdz(qint64 id) override;
    bool zapisz(qint64 id) override;
    void porzuc() override {}
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override { return lista_.Usun(nazwy_.at(id)); }
    void pokazano(qint64 id) override;

private:
    frmLogLista(Otoczenie& otoczenie, std::unique_ptr<DaneUzytkownika> dane, QWidget* rodzic);
    void Blokada(bool administrator);

    ListaUzytkownikow lista_;
    std::unique_ptr<DaneUzytkownika> dane_; ///< the user shown, as his fields have him
    QStringList nazwy_;
    QLabel* labAdm_;
};

} // namespace tornel::app
