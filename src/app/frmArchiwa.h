// "Przywróć z archiwum": the archives of the base folder and what each of them holds.
#pragma once
#include "okna/Okno.h"
#include "start/Archiwum.h"

class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::app {

class frmArchiwa : public Okno {
    Q_OBJECT
public:
    /// Lists the archives of `bazowy`; `baza` is the database that one of them would replace.
    frmArchiwa(Rozmowa& rozmowa, const QString& bazowy, const QString& baza, QWidget* rodzic = nullptr);

    /// The archive to be restored, once the clerk has agreed to it.
    [[nodiscard]] std::optional<OpisArchiwum> wybrane() const;
    void accept() override;

private:
    Rozmowa& rozmowa_;
    QString baza_;
    QList<OpisArchiwum> archiwa_;
    WidokListy* lvwArchiwa_;
    QPushButton* cmdPrzywroc_;
};

} // namespace tornel::app
