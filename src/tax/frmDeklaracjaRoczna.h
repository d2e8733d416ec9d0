// The screens of the yearly declarations, `frmPIT11`, `frmPIT40`, `frmPIT8B`: one working row, filled anew at
// each opening, edited and printed. A table tells them apart.
#pragma once
#include "okna/Okno.h"
#include "okna/Wiazanie.h"
#include "tax/frmDeklaracjaRocznaPola.h"
#include "tax/PortWydrukowDeklaracji.h"

class QLabel;

namespace tornel::tax {

/// What was typed is stored when the screen is left or prints, until the next declaration takes the row.
/// Keys: Ctrl+P prints, Enter goes to the next field, Escape closes.
class frmDeklaracjaRoczna : public OknoEdycji {
    Q_OBJECT
public:
    /// Throws `Blad` when the declaration cannot be made.
    frmDeklaracjaRoczna(Otoczenie& otoczenie, Deklaracja ktora, qint64 prcId, const OkresPodatkowy& okres,
                        PortWydrukowDeklaracji port = {}, QWidget* rodzic = nullptr);

protected:
    [[nodiscard]] bool jestZmiana() const override;
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override { rs().CancelBatch(); }
    void pokazPonownie() override { Wyswietl(); }
    // Its one row is not data that anybody keeps.
    [[nodiscard]] bool cofaCzynnosci() const override { return false; }

private:
    [[nodiscard]] Recordset& rs() const { return o_.sesja.*OpisDeklaracji(ktora_).uchwyt; }
    [[nodiscard]] QWidget* przyciski();
    void sprawdzajWzory();
    /// The screen's fields go into the row, in memory.
    void WpiszDoBazy();
    void Oblicz3();
    void Wyswietl();
    void rozlicz();
    void drukuj();

    Otoczenie& o_;
    Deklaracja ktora_;
    PortWydrukowDeklaracji port_;
    ZrodloDeklaracji zrodlo_;
    Wiazanie wiazanie_;
    QLabel* labUwagi_;
};

} // namespace tornel::tax
