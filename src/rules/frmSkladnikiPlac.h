// "Składniki zmienne płac": the names, flags and codes of all payroll components on three tabs.
#pragma once
#include "rules/ZmianaSkladnikow.h"
#include <array>
#include <QDialog>

class QTabWidget;

namespace tornel::rules {

class frmSkladnikiPlac : public QDialog {
    Q_OBJECT
public:
    /// Reads the catalogue anew. Throws as `Wczytaj_skladniki`.
    explicit frmSkladnikiPlac(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

    /// Asks whether to store what was changed. The screen stays open when that fails.
    void done(int wynik) override;

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

protected:
    void closeEvent(QCloseEvent* zdarzenie) override;

private:
    static constexpr int kKolumn = 7;
    static constexpr int kNaZakladce = 15;
    static constexpr int kWszystkich = kDodatnich + kUjemnych;

    [[nodiscard]] QWidget* zakladka(int pierwszy);
    [[nodiscard]] QWidget* kontrolka(int numer, int kolumna);
    void pokaz();
    [[nodiscard]] KatalogSkladnikow zbierz() const;
    void uaktywnij();
    void pokazPonownie();

    Otoczenie& o_;
    QTabWidget* zakladki_;
    /// By component and column; null where a component has no such field.
    std::array<std::array<QWidget*, kKolumn>, kWszystkich> kontrolki_{};
    bool zmieniono_ = false;
};

} // namespace tornel::rules
