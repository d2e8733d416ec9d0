// The user's side as a port: what logic tells and asks, without knowing whether a window, a console or a test
// script answers.
#pragma once
#include "common/Przestrzenie.h"
#include <memory>
#include <optional>
#include <QList>
#include <QString>

namespace tornel::common {

enum class Styl { Informacja, Wykrzyknik, Krytyczny };

/// Progress of a long action.
class Postep {
public:
    virtual ~Postep() = default;
    /// Shows `tekst` as the step `krok` (from 1). False once the clerk asked to stop; the caller then ends
    /// between two steps and keeps what is done.
    [[nodiscard]] virtual bool krok(int krok, const QString& tekst) = 0;
};

/// A Yes/No question of an action, settled before the action begins.
struct PytanieAkcji {
    QString tekst;
    int zalezneOd = -1; ///< asked only if the question at this place in the list was answered Yes
};

class Rozmowa {
public:
    virtual ~Rozmowa() = default;

    virtual void komunikat(const QString& tekst, Styl styl, const QString& tytul = domyslnyTytul()) = 0;
    /// A Yes/No question. Throws `Przerwanie` where nobody can answer (console without answers).
    [[nodiscard]] virtual bool pytanie(const QString& tekst, const QString& tytul = domyslnyTytul()) = 0;
    /// A question whose Yes deletes something or lets it go: No is what Enter answers.
    [[nodiscard]] virtual bool pytanieUsuwajace(const QString& tekst,
                                                const QString& tytul = domyslnyTytul()) {
        return pytanie(tekst, tytul);
    }
    /// A Yes/No question of something that may also be left undone: nothing when the clerk cancels. Here
    /// without that way out, where the user's side has none.
    [[nodiscard]] virtual std::optional<bool> pytanieZAnulowaniem(const QString& tekst,
                                                                  const QString& tytul = domyslnyTytul()) {
        return pytanie(tekst, tytul);
    }
    /// Settles the questions of an action, whose name is `tytul`, before it begins; a question that the
    /// answer to another one makes idle is answered No. Nothing when the clerk cancels: nothing may change
    /// then. Here one by one in their order, where the user's side has nothing better to show.
    [[nodiscard]] virtual std::optional<QList<bool>> pytania([[maybe_unused]] const QString& tytul,
                                                             const QList<PytanieAkcji>& pytania) {
        QList<bool> odpowiedzi;
        for (const PytanieAkcji& p : pytania)
            odpowiedzi.append((p.zalezneOd < 0 || odpowiedzi.at(p.zalezneOd)) && pytanie(p.tekst));
        return odpowiedzi;
    }
    /// An input box. Nothing when it was cancelled.
    [[nodiscard]] virtual std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                          const QString& domyslna = {}) = 0;
    /// Progress over `ile` steps; it ends with the object's life.
    [[nodiscard]] virtual std::unique_ptr<Postep> postep(const QString& tytul, int ile) = 0;

    static QString domyslnyTytul() { return QStringLiteral("Tornel 2001"); }
};

} // namespace tornel::common
