// The eleven tabs of an employee: each is filled from the handles when it is shown, and written to them when
// it is left.
#pragma once
#include "okna/Wiazanie.h"
#include "personnel/frmPracPola.h"
#include "personnel/KartotekaPracownika.h"
#include <memory>
#include <QGroupBox>
#include <QList>
#include <QTabWidget>
#include <set>
#include <vector>

class QLabel;

namespace tornel::personnel {

/// Reads the employee taken up; keeps what is written until a whole tab is together.
class ZrodloKartoteki final : public ZrodloPol {
public:
    explicit ZrodloKartoteki(const KartotekaPracownika& kartoteka) : kartoteka_(kartoteka) {}

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override;
    void zapisz(const Pole& pole, const Wartosc& wartosc) override;
    [[nodiscard]] bool czekaNaZapis(const Pole& pole) const override {
        return kartoteka_.zmieniona(pole.kolumna);
    }
    /// What was written since the last call.
    [[nodiscard]] KartotekaPracownika::Zmiany zabierz();

private:
    const KartotekaPracownika& kartoteka_;
    KartotekaPracownika::Zmiany zmiany_;
};

class ZakladkiPracownika : public QTabWidget {
    Q_OBJECT
public:
    ZakladkiPracownika(Otoczenie& otoczenie, KartotekaPracownika& kartoteka, QWidget* rodzic = nullptr);
    ~ZakladkiPracownika() override;

    /// The framed note, to stand at the side of the tabs; the caller owns it.
    [[nodiscard]] QWidget* notatka() const { return ramkaNotatki_; }

    /// Shows the employee taken up on the current tab; empty and locked for nobody.
    void Pokaz();
    /// Writes the current tab and the note to the handles.
    void Zapisz();
    /// The handles were stored: the marks of the fields say so.
    void odswiezZnaki();
    /// Something was typed that is not written yet.
    [[nodiscard]] bool jestZmiana() const;
    /// Whether a field has just had to say that it did not understand what was typed.
    [[nodiscard]] bool wlasnieNieZrozumiano() const;
    /// Goes to the first field of the current tab.
    void wejdz();
    /// Leaves the field in work for the next one of the tab, behind the last for the first.
    void nastepnePole();

signals:
    /// The clerk has changed something.
    void zmienione();
    /// A tab was written to the handles.
    void zapisane();

private:
    void PokazZakladke(int zakladka);
    void ZapiszZakladke(int zakladka);
    void zmienZakladke(int zakladka);

    [[nodiscard]] QWidget* strona(int zakladka, const ZakladkaKartoteki& opis);
    [[nodiscard]] QWidget* kolumna(Wiazanie& wiazanie, const KolumnaKartoteki& grupy);
    [[nodiscard]] QWidget* przyciskiSkladnikow();
    void wykoncz();
    void opiszSkladniki();
    void pokazNaglowki();
    void zablokujNieaktywne();
    void zaznaczSkladniki(bool (*dodatni)(const SkladnikiPlac&, int),
                          bool (*ujemny)(const SkladnikiPlac&, int));
    void uaktywnij();
    void Miejsca();
    void sprawdzWejscieDoAdresu(const QWidget* pole);
    void zaproponujKopie(AdresKopii adres);
    [[nodiscard]] Wiazanie& wiazanie(int zakladka) { return *wiazania_[static_cast<std::size_t>(zakladka)]; }

    Otoczenie& o_;
    KartotekaPracownika& kartoteka_;
    ZrodloKartoteki zrodlo_;
    std::vector<std::unique_ptr<Wiazanie>> wiazania_;
    Wiazanie wiazanieNotatki_;
    int biezaca_ = 0;
    std::set<AdresKopii> zaproponowane_; ///< since the tab with the addresses was shown
    QGroupBox *ramkaZamieszkania_ = nullptr, *ramkaKorespondencji_ = nullptr, *ramkaNotatki_;
    QLabel* labMiejsca_ = nullptr;
    QList<QLabel*> naglowki_;
};

} // namespace tornel::personnel
