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
    UstawWersje(baza, 0);
}

} // namespace tornel::testy
