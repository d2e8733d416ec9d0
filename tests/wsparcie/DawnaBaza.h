// A file as the program made it before its data had versions.
#pragma once
#include "store/Struktura.h"
#include "store/WersjaPliku.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

/// Takes back what the steps of all versions brought.
inline void dawnaBaza(Polaczenie& baza) {
    for (const char16_t* tabela : {u"ZASILEK", u"WPISANE", u"WYKONANE", u"DZIENNIK", u"DZIENNIK_ZMIANY"})
        UsunTabele(baza, QString::fromUtf16(tabela));
    for (const std::string kolumna :
         {"przyczyna", "data_roz", "data_wyp", "sposob", "inne_war", "wyp_2tyg", "zmienia"})
        baza.wykonaj("ALTER TABLE \"UMOP\" DROP COLUMN \"" + kolumna + "\"");
    UstawWersje(baza, 0);
}

} // namespace tornel::testy
