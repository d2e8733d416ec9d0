// The user's side on the console: messages and questions go to standard error, answers come from the command
// line.
#pragma once
#include "common/Rozmowa.h"
#include <QIODevice>
#include <QList>
#include <QString>

namespace tornel::cli {

/// How the questions of one command are answered.
class OdpowiedziKonsoli {
public:
    /// No answers: every question ends the command.
    OdpowiedziKonsoli() = default;
    /// The same answer to every question.
    [[nodiscard]] static OdpowiedziKonsoli jednakowe(bool tak);
    /// Lines `text fragment=T` or `=N` of a UTF-8 file. Throws `Blad` that names the file and the line.
    [[nodiscard]] static OdpowiedziKonsoli zPliku(const QString& sciezka);

    /// The answer of the first line whose fragment stands anywhere in the question, nothing if there is none.
    [[nodiscard]] std::optional<bool> na(const QString& pytanie) const;

private:
    struct Wzorzec {
        QString fragment;
        bool tak = false;
    };
    QList<Wzorzec> wzorce_;
};

class RozmowaKonsoli : public Rozmowa {
public:
    /// `bledy` outlives this object. Progress is shown only on a terminal (`terminal`).
    RozmowaKonsoli(OdpowiedziKonsoli odpowiedzi, QIODevice& bledy, bool terminal);

    void komunikat(const QString& tekst, Styl styl, const QString& tytul = domyslnyTytul()) override;
    /// Prints the question with the answer taken; without an answer throws `Przerwanie`.
    [[nodiscard]] bool pytanie(const QString& tekst, const QString& tytul = domyslnyTytul()) override;
    /// No text can be typed: throws `Przerwanie`.
    [[nodiscard]] std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                  const QString& domyslna = {}) override;
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString& tytul, int ile) override;

private:
    void pisz(const QString& tekst);

    OdpowiedziKonsoli odpowiedzi_;
    QIODevice& bledy_;
    bool terminal_;
};

} // namespace tornel::cli
