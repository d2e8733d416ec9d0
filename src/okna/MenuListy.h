// What a list offers at its right button: the commands of its screen's buttons, and what every list can do.
#pragma once
#include "druk/Uklad.h"
#include <memory>
#include <QMenu>

namespace tornel::okna {

class WidokListy;

/// The commands of the buttons of the list's window that can be seen, in their order, each as able as its
/// button; then copying, marking all, a CSV file, printing, and the choice of columns.
class MenuListy : public QMenu {
    Q_OBJECT
public:
    explicit MenuListy(WidokListy& lista);

private:
    void dodajPrzyciski(const WidokListy& lista);
};

/// The list's columns, each with a mark that shows or hides it.
class MenuKolumn : public QMenu {
    Q_OBJECT
public:
    explicit MenuKolumn(WidokListy& lista, QWidget* rodzic = nullptr);
};

/// The rows and columns of the list that are seen, as a print and as CSV.
[[nodiscard]] std::shared_ptr<const Uklad> UlozListe(const WidokListy& lista);

} // namespace tornel::okna
