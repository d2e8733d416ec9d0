#include "druk/Tabela.h"
#include "reports/kadry/Papiery.h"
#include "rules/Stale.h"

namespace tornel::reports {

namespace {

enum PoleListyPracownikow : int {
    LpLiczba,
    LpNumer,
    LpNazwisko,
    LpUrodzony,
    LpPesel,
    LpDzial,
    LpStanowisko,
    LpEtat,
    LpZatrudniony,
    LpZwolniony
};

class WierszePracownikow final : public WierszeDruku {
public:
    explicit WierszePracownikow(QList<DaneOsoby> osoby) : osoby_(std::move(osoby)) {}
    [[nodiscard]] int ile() const override { return static_cast<int>(osoby_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override {
        const DaneOsoby& o = osoby_.at(wiersz);
        switch (nr) {
        case LpLiczba:
            return qint64{wiersz} + 1;
        case LpNumer:
            return o.prcId;
        case LpNazwisko:
            return o.pelneNazwisko();
        case LpUrodzony:
            return o.dataUrodzenia;
        case LpPesel:
            return o.pesel;
        case LpDzial:
            return o.dzial;
        case LpStanowisko:
            return o.stanowisko;
        case LpEtat:
            return o.etat;
        case LpZatrudniony:
            return o.zatrudniony;
        default:
            return o.zwolniony;
        }
    }

private:
    QList<DaneOsoby> osoby_;
};

} // namespace

Papier ListaPracownikow(const ZrodloPapieru& zrodlo) {
    constexpr double kWys = 4.8;
    OpisWydruku opis = NowyOpis(zrodlo.nazwa, QStringLiteral("Lista pracowników"), true);
    const Firma firma = FirmaNaWydruku(zrodlo.otoczenie.stale);
    const QList<KolumnaDruku> kolumny{
        {QStringLiteral("Lp."), 11, LpLiczba, Format::Liczba},
        {QStringLiteral("Nr"), 13, LpNumer, Format::Liczba},
        {QStringLiteral("Nazwisko i imiona"), 66, LpNazwisko},
        {QStringLiteral("Data\nurodzenia"), 20, LpUrodzony, Format::Data},
        {QStringLiteral("PESEL"), 23, LpPesel},
        {QStringLiteral("Dział"), 38, LpDzial},
        {QStringLiteral("Stanowisko"), 54, LpStanowisko},
        {QStringLiteral("Etat"), 12, LpEtat},
        {QStringLiteral("Zatrudniony\ndnia"), 20, LpZatrudniony, Format::Data},
        {QStringLiteral("Zwolniony\ndnia"), 20, LpZwolniony, Format::Data},
    };
    for (const KolumnaDruku& k : kolumny) opis.nazwyPol.append(QString(k.naglowek).replace(u'\n', u' '));
    opis.brakWierszy = QStringLiteral("Na liście nie ma pracowników.");
    const QString podtytul = QStringLiteral("stan na dzień ") + FormatDaty(zrodlo.dzien) +
                             QStringLiteral(", osób: ") + QString::number(zrodlo.osoby.size());
    opis.arkusze = {{naglowekWydruku(opis.strona, firma.wLinii(), opis.tytul, podtytul),
                     {.rola = Rola::NaglowekStrony, .wys = 8, .elementy = naglowkiKolumn(kolumny, 0)},
                     {.rola = Rola::Wiersz, .wys = kWys, .elementy = komorkiWiersza(kolumny, kWys)},
                     StopkaZFirma(opis, firma, zrodlo.dzien)}};
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszePracownikow>(zrodlo.osoby));
}

} // namespace tornel::reports
