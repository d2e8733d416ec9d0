// The user's side of a clerk who says yes to everything and reads nothing.
#pragma once
#include "common/Rozmowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

class RozmowaZgoda : public Rozmowa {
public:
    void komunikat(const QString&, Styl, const QString&) override {}
    [[nodiscard]] bool pytanie(const QString&, const QString&) override { return true; }
    [[nodiscard]] std::optional<QString> wprowadz(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString&, int) override {
        return std::make_unique<BezKonca>();
    }

private:
    class BezKonca : public Postep {
    public:
        [[nodiscard]] bool krok(int, const QString&) override { return true; }
    };
};

} // namespace tornel::testy
