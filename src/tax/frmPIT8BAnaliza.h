// The span of PIT-8B, and the contracts and fees of the person that were paid in it.
#pragma once
#include "okna/Okno.h"
#include "rules/Otoczenie.h"
#include "tax/Przychody.h"

class QLabel;

namespace tornel::okna {
class PolaZakresu;
class WidokListy;
} // namespace tornel::okna

namespace tornel::tax {

class frmPIT8BAnaliza : public Okno {
    Q_OBJECT
public:
    /// Proposes the whole year.
    frmPIT8BAnaliza(Otoczenie& otoczenie, qint64 prcId, int rok, QWidget* rodzic = nullptr);

    [[nodiscard]] OkresPodatkowy okres() const;
    /// Stays, after a message, while the range is the wrong way round.
    void accept() override;

private:
    void wczytaj();

    Otoczenie& o_;
    qint64 prcId_;
    PolaZakresu* zakres_;
    WidokListy* lvwUmowy_;
    QLabel* labSumy_;
};

} // namespace tornel::tax
