// The working place of a payroll month: its list, the tabs of the row chosen, and the calculations.
#pragma once
#include "okna/ListaModel.h"
#include "okna/Okno.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/lista/PortWydrukow.h"
#include "payroll/lista/SumyListy.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nieobecnosci/frmWykazy.h"
#include "rules/Otoczenie.h"
#include <map>
#include <optional>
#include <QList>
#include <utility>

class QLabel;

namespace tornel::okna {
class WidokListy;
class WierszSum;
} // namespace tornel::okna

namespace tornel::payroll {

class PasekListy;
class ZakladkiListy;

class frmPlaceLista : public Okno {
    Q_OBJECT
public:
    /// Opens the month on the session's handles; closing the screen closes it. `symbol`: a blank for all
    /// lists. Throws `Blad` for a month that is not there.
    frmPlaceLista(Otoczenie& otoczenie, RokMies miesiac, const QString& symbol, QWidget* rodzic = nullptr,
                  PortWydrukow wydruki = {});
    ~frmPlaceLista() override;
    [[nodiscard]] bool przygotujCofniecie() override;

protected:
    /// Stores what is pending and the month sums, then closes the month. It stays open when the field in work
    /// cannot be stored, or has just had to say that it did not understand what was typed.
    [[nodiscard]] bool moznaZamknac() override;
    void pokazPonownie() override;
    [[nodiscard]] bool cofaCzynnosci() const override { return true; }
    void wczytajPonownie() override;
    void nastepnePole() override;
    void keyPressEvent(QKeyEvent* zdarzenie) override;

private:
    void polacz();
    void budujSkroty();
    [[nodiscard]] QWidget* lewaStrona();
    [[nodiscard]] QWidget* prawaStrona();

    /// Fills the list with the rows read and chooses `zaznacz`, else the first.
    void pokazListe(const std::optional<KluczListy>& zaznacz);
    void wybierzWiersz(qint64 id);
    void wypiszWiersz(const KluczListy& klucz);
    void wypiszBiezacy();
    void pokazNaglowek();
    [[nodiscard]] std::optional<KluczListy> biezacy() const;

    void nowy();
    void dodajJednego(qint64 prcId);
    void dodajWielu(const QList<qint64>& osoby);
    void usun();
    void przelicz();
    void przepisz();
    void przeliczDni();
    void drukuj(const QString& napis);
    void seria(const QList<Obliczenie>& obliczenia);
    void poSerii();
    [[nodiscard]] QList<KluczListy> klucze() const;
    void caloscNaKonto();
    void caloscNaKontoWszystkich();
    /// Looks at all rows of the month, or at the one taken up, and marks in the list what needs attention.
    void przejrzyjWiersze();
    void przejrzyjBiezacy();
    [[nodiscard]] WierszListy wierszListy(qint64 id) const;
    void wskazPrzelicz(bool tak);
    void pokazOznaczenie();
    void pokazRazem();
    void powiedzOUwagach() const;

    using Klucz = std::pair<qint64, QString>;

    Otoczenie& o_;
    PortWydrukow wydruki_;
    WykazyOkien wykazy_{this};
    ListaPlac lista_;
    QList<LiniaListy> linie_;
    SumyListy sumy_;                       ///< of `linie_`
    std::map<Klucz, StanWiersza> doUwagi_; ///< the rows that need attention
    bool przeliczNastepne_ = false;        ///< the clerk has just done what `Przelicz1` follows
    WidokListy* lvwPlace_;
    WierszSum* sumyPlace_;
    ZakladkiListy* zakladki_;
    PasekListy* pasek_;
    QLabel *labPracownik_, *labKwoty_, *labIleWierszy_, *labUwaga_;
};

} // namespace tornel::payroll
