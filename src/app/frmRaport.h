// The report of a structure update, to be read and copied.
#pragma once
#include "okna/Okno.h"

namespace tornel::app {

class frmRaport : public Okno {
    Q_OBJECT
public:
    /// `plik`: where the report stands; `tekst`: what it says.
    frmRaport(const QString& plik, const QString& tekst, QWidget* rodzic = nullptr);
};

} // namespace tornel::app
