// A database of its own for each test: made from the template in a folder that ends with the test.
#pragma once
#include "personnel/Pracownicy.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <memory>
#include <QTemporaryDir>

namespace tornel::testy {

class BazaTestowa : public testing::Test {
protected:
    BazaTestowa() {
        UtworzBazeZSzablonu(sciezka(), folder_.path(), rozmowa_);
        otworz();
    }

    [[nodiscard]] QString sciezka() const { return folder_.filePath(QStringLiteral("Tornel.mdb")); }
    void otworz() { program_ = std::make_unique<Program>(sciezka(), folder_.path(), rozmowa_); }
    /// Closes the file and opens it again, as the next start of the program does.
    void otworzPonownie() {
        program_.reset();
        otworz();
    }

    Sesja& sesja() { return program_->sesja(); }
    Otoczenie& otoczenie() { return program_->otoczenie(); }
    Stale& stale() { return program_->otoczenie().stale; }

    /// A new employee who is not reported to any insurance.
    void dodajPracownika(qint64 prcId, const QString& nazwisko = QStringLiteral("Nowak"),
                         const QString& imie = QStringLiteral("Anna")) {
        rozmowa_.spodziewaj(
            QStringLiteral("Został zarejestrowany nowy pracownik. Czy nastąpi zgłoszenie pracownika do "
                           "ubezpieczeń społecznych ?"),
            Odpowiedz::Nie);
        Pracownicy(otoczenie()).NowyPracownik({prcId, nazwisko, imie});
    }

    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
};

/// "1650,00" as money.
inline Waluta zl(double kwota) { return Waluta::zLiczby(kwota); }

} // namespace tornel::testy
