// What the insurer would reject in the collection that is about to be written, each line leading to the place
// where it is mended.
#pragma once
#include "okna/Okno.h"
#include "zus/KontrolaKedu.h"
#include <functional>

class QLabel;
class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::zus {

/// Accepted: the collection is written all the same. Keys: Enter on a line opens its place, F5 looks again.
class frmUwagiKedu : public Okno {
    Q_OBJECT
public:
    using Popraw = std::function<void(const UwagaKedu& uwaga, QWidget* rodzic)>;

    /// `sprawdz` gives the remarks, again after each mending; `popraw` opens the place of one.
    frmUwagiKedu(std::function<QList<UwagaKedu>()> sprawdz, Popraw popraw, QWidget* rodzic = nullptr);

private:
    void wczytaj();
    void otworz(qint64 nr);
    void pokazWybrana(qint64 nr);

    std::function<QList<UwagaKedu>()> sprawdz_;
    Popraw popraw_;
    QList<UwagaKedu> uwagi_;
    WidokListy* lvwUwagi_;
    QLabel* labIle_;
    QPushButton *cmdOtworz_, *cmdMimo_;
};

} // namespace tornel::zus
