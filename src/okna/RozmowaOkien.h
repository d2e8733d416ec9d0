// The user's side in windows: message boxes, questions, input boxes and progress, in Polish and over the
// screen in work.
#pragma once
#include "common/Rozmowa.h"
#include <functional>

class QWidget;

namespace tornel::okna {

class RozmowaOkien : public Rozmowa {
public:
    /// `rodzic`: the window over which boxes open while no other box or screen is modal; may give null.
    explicit RozmowaOkien(std::function<QWidget*()> rodzic = {});

    void komunikat(const QString& tekst, Styl styl, const QString& tytul = domyslnyTytul()) override;
    /// Enter answers Yes, Escape and closing answer No.
    [[nodiscard]] bool pytanie(const QString& tekst, const QString& tytul = domyslnyTytul()) override;
    [[nodiscard]] std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                  const QString& domyslna = {}) override;
    /// The window shows only if the work takes longer than 400 ms. Until then clicks wait; from then on the
    /// window is alive, and only it is.
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString& tytul, int ile) override;

private:
    [[nodiscard]] QWidget* nadCzym() const;
    std::function<QWidget*()> rodzic_;
};

} // namespace tornel::okna
