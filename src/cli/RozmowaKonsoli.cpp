#include "cli/RozmowaKonsoli.h"
#include "common/Blad.h"
#include "common/Pliki.h"

namespace tornel::cli {

namespace {

/// The system's messages break their lines in each of the three ways.
QString zLiniami(QString tekst, QChar podzial) {
    return tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'))
        .replace(QLatin1Char('\n'), podzial);
}

class PostepKonsoli : public Postep {
public:
    PostepKonsoli(QIODevice* terminal, int ile) : terminal_(terminal), ile_(std::max(ile, 1)) {}
    ~PostepKonsoli() override {
        if (terminal_ && procent_ >= 0) terminal_->write("\r\x1b[K");
    }
    PostepKonsoli(const PostepKonsoli&) = delete;
    PostepKonsoli& operator=(const PostepKonsoli&) = delete;

    [[nodiscard]] bool krok(int krok, const QString& tekst) override {
        const auto procent = static_cast<int>(qint64{100} * krok / ile_);
        if (terminal_ && procent != procent_)
            terminal_->write(QStringLiteral("\r%1 (%2%)\x1b[K").arg(tekst).arg(procent).toUtf8());
        procent_ = procent;
        return true;
    }

private:
    QIODevice* terminal_; // none: nothing is shown
    int ile_;
    int procent_ = -1;
};

} // namespace

OdpowiedziKonsoli OdpowiedziKonsoli::jednakowe(bool tak) {
    OdpowiedziKonsoli wynik;
    wynik.wzorce_.append({QString(), tak});
    return wynik;
}

OdpowiedziKonsoli OdpowiedziKonsoli::zPliku(const QString& sciezka) {
    OdpowiedziKonsoli wynik;
    int numer = 0;
    for (QString linia : CzytajTekst(sciezka).split(QLatin1Char('\n'))) {
        ++numer;
        linia = linia.trimmed();
        if (linia.isEmpty()) continue;
        const bool tak = linia.endsWith(QStringLiteral("=T"));
        if ((!tak && !linia.endsWith(QStringLiteral("=N"))) || linia.size() == 2)
            throw Blad(QStringLiteral("Plik odpowiedzi „%1”, wiersz %2: powinno być fragment=T albo "
                                      "fragment=N, a jest \"%3\".")
                           .arg(sciezka, QString::number(numer), linia));
        wynik.wzorce_.append({linia.chopped(2).trimmed(), tak});
    }
    return wynik;
}

std::optional<bool> OdpowiedziKonsoli::na(const QString& pytanie) const {
    const QString jednaLinia = zLiniami(pytanie, QLatin1Char(' '));
    for (const Wzorzec& wzorzec : wzorce_)
        if (jednaLinia.contains(wzorzec.fragment)) return wzorzec.tak;
    return {};
}

RozmowaKonsoli::RozmowaKonsoli(OdpowiedziKonsoli odpowiedzi, QIODevice& bledy, bool terminal)
    : odpowiedzi_(std::move(odpowiedzi)), bledy_(bledy), terminal_(terminal) {}

void RozmowaKonsoli::pisz(const QString& tekst) {
    bledy_.write((zLiniami(tekst, QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}

void RozmowaKonsoli::komunikat(const QString& tekst, Styl, const QString&) { pisz(tekst); }

bool RozmowaKonsoli::pytanie(const QString& tekst, const QString&) {
    const std::optional<bool> odpowiedz = odpowiedzi_.na(tekst);
    if (!odpowiedz) {
        pisz(tekst + QStringLiteral(" [brak odpowiedzi]"));
        throw Przerwanie(
            QStringLiteral("Polecenie przerwane na pytaniu. Odpowiedź dają --tak, --nie i --odpowiedzi."));
    }
    pisz(tekst + (*odpowiedz ? QStringLiteral(" [Tak]") : QStringLiteral(" [Nie]")));
    return *odpowiedz;
}

std::optional<QString> RozmowaKonsoli::wprowadz(const QString& tekst, const QString&, const QString&) {
    pisz(tekst + QStringLiteral(" [brak odpowiedzi]"));
    throw Przerwanie(QStringLiteral("Polecenie przerwane: w konsoli nie można wpisać odpowiedzi."));
}

std::unique_ptr<Postep> RozmowaKonsoli::postep(const QString&, int ile) {
    return std::make_unique<PostepKonsoli>(terminal_ ? &bledy_ : nullptr, ile);
}

} // namespace tornel::cli
