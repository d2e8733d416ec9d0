#include "personnel/frmRejestr.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/Wyglad.h"
#include "personnel/frmData.h"
#include "personnel/frmWybPr.h"
#include "personnel/Pracownicy.h"

namespace tornel::personnel {

namespace {

/// The row taken up, and what is worked out from it.
class ZrodloRejestru final : public ZrodloPol {
public:
    ZrodloRejestru(Recordset& tabela, WartosciObliczane obliczane)
        : tabela_(tabela), wiersz_{&tabela}, obliczane_(std::move(obliczane)) {}

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override {
        if (pole.kolumna.tabela) return wiersz_.czytaj(pole);
        return tabela_.naWierszu() ? obliczane_(pole.klucz) : Wartosc(Null);
    }
    void zapisz(const Pole& pole, const Wartosc& wartosc) override { wiersz_.zapisz(pole, wartosc); }

private:
    Recordset& tabela_;
    ZrodloWierszy wiersz_;
    WartosciObliczane obliczane_;
};

/// As the registers print dates: dd/mm/yyyy.
QString dataListy(QDate data) { return FormatDaty(data).replace(QLatin1Char('-'), QLatin1Char('/')); }

} // namespace

frmRejestr::frmRejestr(Otoczenie& otoczenie, std::shared_ptr<RejestrNieobecnosci> rejestr,
                       WartosciObliczane obliczane, const OpisListyPol& opis, QWidget* rodzic)
    : frmListaPol(otoczenie.rozmowa,
                  std::make_unique<ZrodloRejestru>(rejestr->tabela(), std::move(obliczane)), opis, rodzic),
      o_(otoczenie), rejestr_(std::move(rejestr)) {}

OpisListyPol frmRejestr::opisListy() {
    OpisListyPol opis;
    opis.kolumny = {{QStringLiteral("Od..."), Qt::AlignLeft, Porzadek::Data},
                    {QStringLiteral("Do..."), Qt::AlignLeft, Porzadek::Data},
                    {QStringLiteral("Nr"), Qt::AlignRight},
                    {QStringLiteral("Nazwisko")}};
    opis.udzialy = {22, 22, 13, 43};
    opis.szerokosc = 54 * Wyglad::kSiatka;
    opis.szukaj = QStringLiteral("Szukaj: numer lub nazwisko");
    opis.kolumnaNumeru = 2;
    opis.kolumnaNazwy = 3;
    return opis;
}

GrupaPol frmRejestr::grupaOkresu(const TabelaDef& tabela, const QList<Pole>& podNazwiskiem,
                                 const QList<Pole>& podDatami) {
    const auto pole = [&](const QString& nazwa, const QString& podpis, std::string_view kolumna,
                          Rodzaj rodzaj) {
        return Pole{nazwa, podpis, tabela.nr(tabela.numer(kolumna)), rodzaj, Dostep::Odczyt};
    };
    const QList<Pole> kto{pole(QStringLiteral("txtNr"), QStringLiteral("Nr:"), "prc_id", Rodzaj::Liczba),
                          pole(QStringLiteral("txtNaz"), QStringLiteral("Nazwisko:"), "Naz", Rodzaj::Tekst),
                          pole(QStringLiteral("txtImie"), QStringLiteral("Imię:"), "Imie", Rodzaj::Tekst)};
    const QList<Pole> kiedy{pole(QStringLiteral("dtOd"), QStringLiteral("Od:"), "Data", Rodzaj::Data),
                            pole(QStringLiteral("dtDo"), QStringLiteral("Do:"), "data_do", Rodzaj::Data)};
    return {QStringLiteral("PRACOWNIK I OKRES"), kto + podNazwiskiem + kiedy + podDatami, 2};
}

QList<qint64> frmRejestr::numery() {
    QList<qint64> wynik;
    wiersze_.clear();
    for (const WierszRejestru& w : rejestr_->lista()) {
        wynik.append(w.id);
        wiersze_.insert(w.id, w);
    }
    return wynik;
}

QStringList frmRejestr::tekstyWiersza(qint64 id) {
    const WierszRejestru& w = wiersze_[id];
    return {dataListy(w.zakres.od), dataListy(w.zakres.dokad), FormatNumeru(w.prcId),
            (w.naz + QLatin1Char(' ') + w.imie).trimmed()};
}

bool frmRejestr::przejdz(qint64 id) { return rejestr_->Wypisz(wiersze_.value(id)); }

bool frmRejestr::zapisz(qint64 id) {
    Q_UNUSED(id)
    rejestr_->Wpisz();
    return true;
}

std::optional<qint64> frmRejestr::utworz() {
    const qint64 obecny = biezacy() >= 0 ? wiersze_.value(biezacy()).prcId : -1;
    frmWybPr wybor(o_, kTrybPracujacy, frmWybPr::Ilu::Jeden, this, obecny,
                   frmWybPr::Przelacznik::TakzeZwolnieni);
    if (wybor.exec() != Accepted || wybor.wybrani().isEmpty()) return std::nullopt;
    const qint64 prcId = wybor.wybrani().first();
    frmData dane(FormatNumeru(prcId) + QLatin1Char(' ') + Pracownicy(o_).nazwisko(prcId), rodzaje(), this);
    if (dane.exec() != Accepted) return std::nullopt;
    return Zarejestruj(prcId, dane);
}

bool frmRejestr::skasuj(qint64 id) {
    Q_UNUSED(id)
    return rejestr_->Usun();
}

} // namespace tornel::personnel
