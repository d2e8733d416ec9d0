// "Nowy użytkownik": name and password of a user to be added.
#pragma once
#include "common/Przestrzenie.h"
#include "okna/Okno.h"

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::app {

class ListaUzytkownikow;

class frmLogNowy : public Okno {
    Q_OBJECT
public:
    explicit frmLogNowy(ListaUzytkownikow& lista, QWidget* rodzic = nullptr);

    /// The name under which the user was added. Meaningful once the dialog was accepted.
    [[nodiscard]] QString nazwa() const;

    /// Adds the user; the dialog stays while that is refused.
    void accept() override;

private:
    ListaUzytkownikow& lista_;
    PoleTekstu *txtNazwa_, *txtHaslo_, *txtPowtorzenie_;
};

} // namespace tornel::app
