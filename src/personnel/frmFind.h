// Asks for the number or the name of somebody on the list.
#pragma once
#include "common/Przestrzenie.h"
#include "okna/Okno.h"
#include <functional>

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::personnel {

class frmFind : public Okno {
    Q_OBJECT
public:
    /// `szukaj`: shows whom a text finds; false for nobody, and the dialog stays.
    explicit frmFind(std::function<bool(const QString& tekst)> szukaj, QWidget* rodzic = nullptr);

    void accept() override;

private:
    std::function<bool(const QString&)> szukaj_;
    PoleTekstu* txtSzukany_;
};

} // namespace tornel::personnel
