// "Nowy użytkownik": name and password of a user to be added.
#pragma once
#include <QDialog>

class ListaUzytkownikow;
class PoleTekstu;

class frmLogNowy : public QDialog {
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
