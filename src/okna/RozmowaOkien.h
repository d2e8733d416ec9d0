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
    /// Enter, Escape and closing answer No.
    [[nodiscard]] bool pytanieUsuwajace(const QString& tekst,
                                        const QString& tytul = domyslnyTytul()) override;
    /// Enter answers Yes, Escape and closing cancel.
    [[nodiscard]] std::optional<bool> pytanieZAnulowaniem(const QString& tekst,
                                                          const QString& tytul = domyslnyTytul()) override;
    /// All questions in one dialog (`frmPytania`).
    [[nodiscard]] std::optional<QList<bool>> pytania(const QString& tytul,
                                                     const QList<PytanieAkcji>& pytania) override;
    [[nodiscard]] std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                  const QString& domyslna = {}) override;
    /// The window shows only if the work takes longer than 400 ms. Until then clicks wait; from then on the
    /// window is alive, and only it is.
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString& tytul, int ile) override;

private:
    enum class Domyslny { Tak, Nie };
    enum class Wyjscie { Nie, Anuluj }; ///< what Escape and the window's cross are
    [[nodiscard]] std::optional<bool> zapytaj(const QString& tekst, const QString& tytul, Domyslny domyslny,
                                              Wyjscie wyjscie);
    [[nodiscard]] QWidget* nadCzym() const;
    std::function<QWidget*()> rodzic_;
};

} // namespace tornel::okna
