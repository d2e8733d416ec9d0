#include "tax/Deklaracja.h"
#include <algorithm>
#include <stdexcept>
#include <string>

namespace tornel::tax {

namespace {

constexpr RodzajDeklaracji kRodzaje[] = {
    {Deklaracja::Pit4, u"PIT-4", u"frmListaPIT4", &schemat::PIT4, &Sesja::rsPIT4},
    {Deklaracja::Pit11, u"PIT-11", u"frmPIT11", &schemat::PIT11, &Sesja::rsPIT11},
    {Deklaracja::Pit40, u"PIT-40", u"frmPIT40", &schemat::PIT40, &Sesja::rsPIT40},
    {Deklaracja::Pit8B, u"PIT-8B", u"frmPIT8B", &schemat::PIT8B, &Sesja::rsPIT8B},
};

Wartosc pusta(Typ typ) {
    switch (typ) {
    case Typ::Currency:
        return Waluta{};
    case Typ::Date:
        return Null;
    case Typ::Text:
    case Typ::Char:
    case Typ::Memo:
        return QString();
    default:
        return qint64{0};
    }
}

int numerKolumny(const TabelaDef& tabela, std::string_view nazwa) {
    const int nr = tabela.numer(nazwa);
    if (nr < 0) throw std::logic_error("the declaration has no column " + std::string(nazwa));
    return nr;
}

} // namespace

const RodzajDeklaracji& OpisDeklaracji(Deklaracja ktora) {
    return *std::ranges::find(kRodzaje, ktora, &RodzajDeklaracji::ktora);
}

WierszDeklaracji::WierszDeklaracji(Deklaracja ktora) : ktora_(ktora) {
    wartosci_.reserve(static_cast<qsizetype>(tabela().kolumny.size()));
    for (const KolumnaDef& k : tabela().kolumny) wartosci_.append(pusta(k.typ));
}

WierszDeklaracji::WierszDeklaracji(Deklaracja ktora, const Recordset& deklaracja) : ktora_(ktora) {
    for (int nr = 0; nr < static_cast<int>(tabela().kolumny.size()); ++nr)
        wartosci_.append(deklaracja.wartosc(tabela().nr(nr)));
}

const Wartosc& WierszDeklaracji::wartosc(std::string_view nazwa) const {
    return wartosci_.at(numerKolumny(tabela(), nazwa));
}

Waluta WierszDeklaracji::kwota(Kolumna kolumna) const {
    const auto* kwota = std::get_if<Waluta>(&wartosc(kolumna.nr));
    return kwota ? *kwota : Waluta{};
}

Waluta WierszDeklaracji::kwota(std::string_view nazwa) const {
    return kwota(tabela().nr(numerKolumny(tabela(), nazwa)));
}

QString WierszDeklaracji::tekst(std::string_view nazwa) const {
    const auto* tekst = std::get_if<QString>(&wartosc(nazwa));
    return tekst ? *tekst : QString();
}

void WierszDeklaracji::ustaw(std::string_view nazwa, const Wartosc& wartosc) {
    wartosci_[numerKolumny(tabela(), nazwa)] = wartosc;
}

void WierszDeklaracji::ustaw(std::string_view seria, int nr, const Wartosc& wartosc) {
    ustaw(std::string(seria) + std::to_string(nr), wartosc);
}

void WierszDeklaracji::przepisz(Recordset& deklaracja) const {
    for (int nr = 0; nr < static_cast<int>(wartosci_.size()); ++nr)
        deklaracja.ustaw(tabela().nr(nr), wartosci_[nr]);
}

} // namespace tornel::tax
