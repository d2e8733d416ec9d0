#include "payroll/PodstawySrednich.h"
#include "common/Daty.h"
#include "payroll/Miesiace.h"
#include "payroll/SumaKwot.h"
#include "store/Sesja.h"
#include <optional>

namespace {

/// What the rows of one employee come to.
struct Zbior {
    SumaKwot skladniki;
    std::optional<QString> lista; // of the row whose further columns are kept
    std::array<qint64, 3> dalsze{};
};

QByteArray nazwa(Kolumna k) {
    const std::string_view tekst = k.def().nazwa;
    return QByteArray(tekst.data(), static_cast<qsizetype>(tekst.size()));
}

} // namespace

/// One earlier month. Without a month in the headers it has no tables and gives nothing.
class PodstawySrednich::Miesiac {
public:
    Miesiac(Sesja& sesja, RokMies miesiac, const QList<int>& skladniki, Rodzaj rodzaj, Odczyt odczyt)
        : nazwa_(FormatRoku(miesiac.rok) + QLatin1Char(' ') + NazwaMiesiaca(miesiac.mies)), rodzaj_(rodzaj),
          ile_(static_cast<int>(skladniki.size())) {
        const char* inna = rodzaj == Rodzaj::ZeStawkami ? "PLB" : "PLA";
        if (!JestMiesiac(sesja, miesiac, {"PLS", inna})) return;
        const QByteArray warunek = odczyt == Odczyt::PoJednym ? " WHERE PRC_ID = ?1" : "";
        QByteArray pls("SELECT PRC_ID");
        for (const int nr : skladniki) pls += ", " + ::nazwa(schemat::SP(nr));
        const QByteArray dalsze =
            rodzaj == Rodzaj::ZeStawkami ? ", WSK_FEPRC, WSK_FRPRC, WSK_FCPRC" : ", DN_RO, DN_SO, DN_NI";
        const auto zapytanie = [&](const QByteArray& kolumny, const char* tabela) {
            const QString t = Sesja::nazwaMiesiaca(tabela, miesiac.rok, miesiac.mies);
            return std::make_unique<Instrukcja>(
                sesja.cnPlace, (kolumny + " FROM " + nazwaSql(t.toStdString()) + warunek).toStdString());
        };
        skladniki_ = zapytanie(pls, "PLS");
        dalsze_ = zapytanie("SELECT PRC_ID, LISTA" + dalsze, inna);
        if (odczyt == Odczyt::PoJednym) return;
        wszyscy_.emplace();
        zbierz([this](qint64 prcId) -> Zbior& { return (*wszyscy_)[prcId]; });
    }

    [[nodiscard]] PodstawaMiesiaca pracownika(qint64 prcId) {
        Zbior zbior;
        if (wszyscy_) {
            zbior = wszyscy_->value(prcId);
        } else if (skladniki_) {
            skladniki_->wiaz(0, prcId);
            dalsze_->wiaz(0, prcId);
            zbierz([&](qint64) -> Zbior& { return zbior; });
        }
        PodstawaMiesiaca wynik;
        wynik.nazwa = nazwa_;
        wynik.skladniki = zbior.skladniki.kwota();
        const auto& [a, b, c] = zbior.dalsze;
        if (rodzaj_ == Rodzaj::ZDniami) {
            wynik.dniPracy = a + b + c;
        } else {
            wynik.wsk_feprc = Waluta::zSurowej(a);
            wynik.wsk_frprc = Waluta::zSurowej(b);
            wynik.wsk_fcprc = Waluta::zSurowej(c);
        }
        return wynik;
    }

private:
    void zbierz(const auto& pracownik) {
        while (skladniki_->wiersz()) {
            SumaKwot& suma = pracownik(skladniki_->liczba(0)).skladniki;
            for (int i = 1; i <= ile_; ++i) suma.dodaj(Waluta::zSurowej(skladniki_->liczba(i)));
        }
        skladniki_->od_nowa();
        while (dalsze_->wiersz()) {
            Zbior& zbior = pracownik(dalsze_->liczba(0));
            const QString lista = dalsze_->tekst(1);
            // Days come from the first of his rows, rates from the last.
            if (zbior.lista && (rodzaj_ == Rodzaj::ZDniami ? *zbior.lista <= lista : *zbior.lista >= lista))
                continue;
            zbior.lista = lista;
            for (int i = 0; i < 3; ++i) zbior.dalsze[static_cast<std::size_t>(i)] = dalsze_->liczba(i + 2);
        }
        dalsze_->od_nowa();
    }

    QString nazwa_;
    Rodzaj rodzaj_;
    int ile_;
    std::unique_ptr<Instrukcja> skladniki_, dalsze_; // none without the month
    std::optional<QHash<qint64, Zbior>> wszyscy_;
};

PodstawySrednich::PodstawySrednich(Sesja& sesja, const QList<int>& skladniki, Rodzaj rodzaj, Odczyt odczyt)
    : sesja_(sesja), rodzaj_(rodzaj), odczyt_(odczyt) {
    for (const int nr : skladniki)
        if (nr >= 1 && nr <= 30) skladniki_.append(nr);
}

PodstawySrednich::~PodstawySrednich() = default;

QList<PodstawaMiesiaca> PodstawySrednich::pracownika(qint64 prcId, int ile) {
    QList<PodstawaMiesiaca> wynik;
    for (int i = 0; i < ile; ++i) {
        if (static_cast<std::size_t>(i) == miesiace_.size()) {
            const QDate pierwszy = PierwszyDzien(sesja_.rok(), sesja_.mies()).addMonths(-i - 1);
            miesiace_.push_back(std::make_unique<Miesiac>(sesja_, RokMies{pierwszy.year(), pierwszy.month()},
                                                          skladniki_, rodzaj_, odczyt_));
        }
        wynik.append(miesiace_[static_cast<std::size_t>(i)]->pracownika(prcId));
    }
    return wynik;
}
