// The five tabs of a payroll row: its fields, shown and stored one by one as they are left.
#pragma once
#include "okna/Wiazanie.h"
#include "payroll/lista/frmPlaceListaPola.h"
#include "payroll/lista/ListaPlac.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QHash>
#include <QTabWidget>

class QCheckBox;
class QGroupBox;

namespace tornel::payroll {

/// The four tables of the row taken up, with the sums of its last calculation.
class ZrodloWiersza final : public ZrodloPol {
public:
    ZrodloWiersza(Sesja& sesja, const ListaPlac& lista);

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override;
    void zapisz(const Pole& pole, const Wartosc& wartosc) override { wiersze_.zapisz(pole, wartosc); }

    /// Nothing for one that is not known, or that no amount can hold.
    [[nodiscard]] std::optional<Waluta> czytajSume(SumaEkranu suma) const;

    void przyjmijSumy() { sumyWiersza_ = lista_.wiersz(); }
    void porzucSumy() { sumyWiersza_.reset(); }

private:
    const Sesja& sesja_;
    const ListaPlac& lista_;
    ZrodloWierszy wiersze_;
    std::optional<KluczListy> sumyWiersza_;
};

class ZakladkiListy : public QTabWidget {
    Q_OBJECT
public:
    enum Zakladka { Placa, Dodatnie, Ujemne, CzasPracy, Inne };

    ZakladkiListy(Otoczenie& otoczenie, ListaPlac& lista, QWidget* rodzic = nullptr);

    /// Shows the row taken up.
    void Wypisz_daneP();
    /// The list's sums are those of the row taken up, which has just been computed.
    void przyjmijSumy() { zrodlo_.przyjmijSumy(); }
    /// They are not: something else was computed, or components were changed since.
    void porzucSumy() { zrodlo_.porzucSumy(); }
    void Wyczysc_daneP();
    /// Locks the fields, or opens them.
    void Blokada(bool zablokowane) { wiazanie_.blokuj(zablokowane); }

    /// Leaves the field in work, which stores it.
    void zakoncz() { wiazanie_.zakoncz(); }
    /// Whether a field has just had to say that it did not understand what was typed.
    [[nodiscard]] bool wlasnieNieZrozumiano() const { return wiazanie_.wlasnieNieZrozumiano(); }
    /// Takes back what was typed into the field in work; false if there is nothing.
    bool cofnijWpisywane();
    /// Marks a tab as the one that waits for the clerk.
    void wyroznij(Zakladka zakladka, bool tak);

signals:
    /// A component's amount was changed and stored: the row is due for `Przelicz1`.
    void skladnikiZmienione();
    /// Amounts of the row were stored.
    void kwotyZmienione();

protected:
    void resizeEvent(QResizeEvent* zdarzenie) override;

private:
    /// A list of components with the tab that it stands on.
    struct ListaSkladnikow {
        QWidget* zakladka = nullptr;
        QWidget* tresc = nullptr;
        QCheckBox* bezZerowych = nullptr;
        QWidget* legenda = nullptr;
    };
    [[nodiscard]] QWidget* kolumna(KolumnaEkranu grupy);
    [[nodiscard]] QWidget* strona(const QList<KolumnaEkranu>& kolumny);
    [[nodiscard]] QWidget* stronaPlacy();
    [[nodiscard]] QWidget* droga();
    void dodajDoDrogi(ekranListy::CzescDrogi czesc, QList<Pole>& pola);
    void dodajSkladnikiDrogi(bool brutto, bool dodatnie, bool ujemne, QList<Pole>& pola) const;
    void przyjmij(const PoleEkranu& pole, const Pole& zbudowane);
    [[nodiscard]] QWidget* stronaSkladnikow(ListaSkladnikow& lista, const QString& nazwa,
                                            const QList<Pole>& pola);
    [[nodiscard]] QGroupBox* grupa(const GrupaEkranu& grupa);
    void wykoncz();
    void NazwySkladnikow();
    /// `ostatnie`: the field at the end of the line, behind which the letters of the flags stand.
    void opiszSkladnik(const QString& nazwa, const QString& ostatnie, const QString& podpis,
                       const QString& flagi);
    void opiszStawki();
    /// On a wide window the components stand beside the way that they make up, else on their own tabs.
    void rozmiesc();
    void ukryjZerowe(bool ukryj);
    /// Shows the components of the month, on the way and where the clerk wants it only those with an amount.
    void pokazSkladniki();
    [[nodiscard]] bool widoczny(const QString& pole, const PozycjaSkladnika& pozycja, Waluta kwota) const;
    void zapisz(const QString& nazwa);
    void zmienKwote(const PoleListy& pole);
    void wpiszDni(const QString& nazwa);

    Otoczenie& o_;
    ListaPlac& lista_;
    ZrodloWiersza zrodlo_;
    Wiazanie wiazanie_;
    QHash<QString, Kolumna> kolumny_;
    QList<const PoleEkranu*> zeStawka_;
    std::optional<KluczListy> pokazany_;
    ListaSkladnikow dodatnie_, ujemne_;
    QWidget* obok_ = nullptr; ///< where they stand on a wide window
    bool saObok_ = false;
    bool ukryjZerowe_ = false;
    QHash<QString, bool> widoczne_;
};

} // namespace tornel::payroll
