// "Składniki zmienne płac": the names, flags and codes of all payroll components on three tabs.
#pragma once
#include "okna/Okno.h"
#include "rules/ZmianaSkladnikow.h"
#include <array>

class QTabWidget;

namespace tornel::rules {

class frmSkladnikiPlac : public OknoEdycji {
    Q_OBJECT
public:
    /// Reads the catalogue anew. Throws as `Wczytaj_skladniki`.
    explicit frmSkladnikiPlac(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

protected:
    [[nodiscard]] bool jestZmiana() const override { return zmieniono_; }
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override { zmieniono_ = false; }
    [[nodiscard]] PytanieOZmiany pytanieOZmiany() const override;
    void pokazPonownie() override;

private:
    static constexpr int kKolumn = 7;
    static constexpr int kNaZakladce = 15;
    static constexpr int kWszystkich = kDodatnich + kUjemnych;

    [[nodiscard]] QWidget* zakladka(int pierwszy);
    [[nodiscard]] QWidget* kontrolka(int numer, int kolumna);
    void pokaz();
    [[nodiscard]] KatalogSkladnikow zbierz() const;
    void uaktywnij();
    /// Nothing counts as changed any more.
    void zdejmijZnaki();

    Otoczenie& o_;
    QTabWidget* zakladki_;
    /// By component and column; null where a component has no such field.
    std::array<std::array<QWidget*, kKolumn>, kWszystkich> kontrolki_{};
    bool zmieniono_ = false;
};

} // namespace tornel::rules
