#include "store/Grupa.h"
#include "store/Komorki.h"
#include <algorithm>

namespace tornel::store {

Grupa::Grupa(std::span<Recordset* const> uchwyty, std::span<const TabelaDef* const> tabele) {
    for (const TabelaDef* tabela : tabele)
        uchwyty_.at(ile_++) =
            *std::ranges::find(uchwyty, tabela, [](const Recordset* rs) { return &rs->tabela(); });
}

void Grupa::Open(Polaczenie& polaczenie, const QString& koncowka) const {
    for (Recordset* rs : *this) {
        const TabelaDef& t = rs->tabela();
        rs->Open(polaczenie, napis(t.nazwa) + koncowka);
        QList<Kolumna> klucz;
        for (const std::string_view k : t.klucz) klucz.append(t.nr(t.numer(k)));
        rs->Sort(klucz);
        rs->MoveFirst();
    }
}

void Grupa::Close() const {
    for (Recordset* rs : *this) rs->Close();
}

bool Grupa::otwarta() const {
    return std::all_of(begin(), end(), [](const Recordset* rs) { return rs->otwarty(); });
}

bool Grupa::naWierszu() const {
    return std::all_of(begin(), end(), [](const Recordset* rs) { return rs->naWierszu(); });
}

void Grupa::Delete() const {
    for (Recordset* rs : *this)
        if (rs->naWierszu()) rs->Delete();
}

void Grupa::UpdateBatch(const Transakcja& akcja) const {
    for (Recordset* rs : *this) rs->UpdateBatch(akcja);
}

void Grupa::UpdateBatch(Polaczenie& polaczenie, QStringView czynnosc) const {
    Transakcja transakcja(polaczenie, czynnosc);
    UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

void Grupa::CancelBatch() const {
    for (Recordset* rs : *this) rs->CancelBatch();
}

bool Grupa::zmieniona() const {
    return std::any_of(begin(), end(), [](const Recordset* rs) { return rs->zmieniony(); });
}

} // namespace tornel::store
