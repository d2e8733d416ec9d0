// Entries of the menu that open no screen of their own: they end the program, ask a question first, or open
// the desktop's own window for files.
#pragma once
#include "app/Menu.h"
#include "wsparcie/Przestrzen.h"
#include <algorithm>
#include <initializer_list>

namespace tornel::testy {

inline bool bezEkranu(Wejscie wejscie) {
    using enum Wejscie;
    const auto wejscia = {Cofnij,         Ponow,          Koniec,          OtworzBaze,
                          UtworzArchiwum, AktualizujBaze, PobierzStrukture};
    return std::ranges::find(wejscia, wejscie) != wejscia.end();
}

} // namespace tornel::testy
