#include "druk/Uklad.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "druk/Pisma.h"
#include "druk/Plotno.h"
#include <algorithm>

namespace tornel::druk {

namespace {

using Rodzaj = Element::Rodzaj;

/// "1234567,80" with the thousands apart.
QString zTysiacami(QString kwota) {
    constexpr QChar kTwardaSpacja(0x00A0);
    const qsizetype poczatek = kwota.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (qsizetype i = kwota.indexOf(QLatin1Char(',')) - 3; i > poczatek; i -= 3)
        kwota.insert(i, kTwardaSpacja);
    return kwota;
}

bool zerowa(const Wartosc& w) {
    if (const auto* kwota = std::get_if<Waluta>(&w)) return kwota->zero();
    if (const auto* liczba = std::get_if<qint64>(&w)) return *liczba == 0;
    return std::holds_alternative<std::monostate>(w);
}

/// A paragraph's lines.
QStringList linie(const Element& e, const WierszeDruku& wiersze, int wiersz, Pismo pismo) {
    const QString tekst =
        e.pole >= 0 && wiersz >= 0 ? tekstPola(wiersze.pole(wiersz, e.pole), e.format) : e.tekst;
    return zlam(tekst, pismo, e.miejsce.szer);
}

/// A paragraph in a place that does not grow: smaller where that helps, then cut with a mark.
std::pair<QStringList, Pismo> wcisnij(const Element& e, const WierszeDruku& wiersze, int wiersz) {
    QStringList wynik;
    Pismo pismo = e.pismo;
    qsizetype miesci = 0;
    for (const Pismo proba : {e.pismo, Pismo::Drobne}) {
        pismo = proba;
        wynik = linie(e, wiersze, wiersz, pismo);
        miesci = std::max<qsizetype>(1, static_cast<qsizetype>((e.miejsce.wys + 0.01) / wysLinii(pismo)));
        if (wynik.size() <= miesci) return {wynik, pismo};
    }
    wynik = wynik.first(miesci);
    QString& ostatnia = wynik.last();
    const QChar znak(0x2026);
    while (!ostatnia.isEmpty() && szerTekstu(ostatnia + znak, pismo) > e.miejsce.szer) ostatnia.chop(1);
    ostatnia += znak;
    return {wynik, pismo};
}

} // namespace

QString tekstPola(const Wartosc& wartosc, Format format) {
    if ((format == Format::KwotaBezZera || format == Format::LiczbaBezZera) && zerowa(wartosc)) return {};
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) {
        if (format == Format::Zlote) return FormatKwoty(*kwota).section(QLatin1Char(','), 0, 0);
        if (format == Format::Grosze) return FormatKwoty(*kwota).section(QLatin1Char(','), 1);
        return zTysiacami(FormatKwoty(*kwota));
    }
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return QString::number(*liczba);
    if (const auto* data = std::get_if<QDate>(&wartosc))
        return format == Format::CyfryDaty ? FormatDaty(*data).remove(QLatin1Char('-')) : FormatDaty(*data);
    if (const auto* tekst = std::get_if<QString>(&wartosc)) return *tekst;
    if (const auto* rzeczywista = std::get_if<double>(&wartosc))
        return TekstKwoty(Waluta::zLiczby(*rzeczywista));
    return {};
}

/// Fills the pages from top to bottom, the rows one by one.
class Uklad::Skladanie {
public:
    explicit Skladanie(Uklad& uklad) : u_(uklad), pasma_(uklad.opis_.arkusze.constFirst()) {
        for (int i = 0; i < pasma_.size(); ++i) {
            wgRoli_[static_cast<std::size_t>(pasma_[i].rola)].push_back(i);
            for (const Element& e : pasma_[i].elementy)
                rosnace_[static_cast<std::size_t>(pasma_[i].rola)] |=
                    e.rodzaj == Rodzaj::Akapit && !pasma_[i].formularz;
        }
        const Strona& s = u_.opis_.strona;
        for (const int i : rola(Rola::StopkaStrony)) stopka_ += pasma_[i].wys;
        dol_ = s.wysTresci() - stopka_;
        grupy_.resize(static_cast<std::size_t>(u_.opis_.grupy.size()));
        zeruj(strony_), zeruj(calosci_);
        for (Sumy& g : grupy_) zeruj(g);
    }

    void zloz() {
        otworzStrone();
        for (const int i : rola(Rola::NaglowekWydruku)) postaw(i, -1, {});
        for (const int i : rola(Rola::NaglowekStrony)) postaw(i, -1, {});
        const int ile = u_.wiersze_->ile();
        for (int wiersz = 0; wiersz < ile; ++wiersz) {
            const int zmiana = wiersz == 0 ? 0 : poziomZmiany(wiersz);
            if (wiersz > 0) zamknijGrupy(zmiana, wiersz - 1);
            otworzGrupy(zmiana, wiersz);
            for (const int i : rola(Rola::Wiersz)) postaw(i, wiersz, {});
            dolicz(wiersz);
        }
        if (ile > 0) zamknijGrupy(0, ile - 1);
        for (const int i : rola(Rola::StopkaWydruku)) postaw(i, ile - 1, calosci_);
        zamknijStrone();
    }

private:
    [[nodiscard]] const std::vector<int>& rola(Rola r) const { return wgRoli_[static_cast<std::size_t>(r)]; }
    void zeruj(Sumy& s) const { s.assign(u_.sumowane_.size(), Waluta{}); }

    [[nodiscard]] int poziomZmiany(int wiersz) const {
        const auto& grupy = u_.opis_.grupy;
        for (int g = 0; g < grupy.size(); ++g)
            if (u_.wiersze_->pole(wiersz, grupy[g]) != u_.wiersze_->pole(wiersz - 1, grupy[g])) return g;
        return static_cast<int>(grupy.size());
    }

    void otworzGrupy(int od, int wiersz) {
        wiersz_ = wiersz;
        for (const int i : rola(Rola::NaglowekGrupy))
            if (pasma_[i].grupa >= od) postaw(i, wiersz, {}, Zapas::NaWiersz);
        otwarte_ = true;
    }

    /// From the innermost group to that of level `od`.
    void zamknijGrupy(int od, int wiersz) {
        const auto& stopki = rola(Rola::StopkaGrupy);
        for (int g = static_cast<int>(grupy_.size()) - 1; g >= od; --g) {
            for (const int i : stopki)
                if (pasma_[i].grupa == g) postaw(i, wiersz, grupy_[static_cast<std::size_t>(g)]);
            zeruj(grupy_[static_cast<std::size_t>(g)]);
        }
        if (od < static_cast<int>(grupy_.size())) otwarte_ = false;
    }

    void dolicz(int wiersz) {
        for (std::size_t i = 0; i < u_.sumowane_.size(); ++i) {
            const Wartosc w = u_.wiersze_->pole(wiersz, u_.sumowane_[i]);
            Waluta kwota;
            if (const auto* k = std::get_if<Waluta>(&w))
                kwota = *k;
            else if (const auto* n = std::get_if<qint64>(&w))
                kwota = Waluta::zlotych(*n);
            strony_[i] += kwota;
            calosci_[i] += kwota;
            for (Sumy& g : grupy_) g[i] += kwota;
        }
    }

    [[nodiscard]] double wysokosc(const Pasmo& p, int wiersz) const {
        double wys = p.wys;
        if (rosnace_[static_cast<std::size_t>(p.rola)] && !p.formularz)
            for (const Element& e : p.elementy)
                if (e.rodzaj == Rodzaj::Akapit) {
                    const auto linii = static_cast<double>(linie(e, *u_.wiersze_, wiersz, e.pismo).size());
                    const double potrzeba = e.miejsce.y + linii * wysLinii(e.pismo);
                    wys = std::max(wys, p.wys - e.miejsce.wys + potrzeba - e.miejsce.y);
                }
        return wys;
    }

    /// Whether a band needs room for the row behind it too: a header alone at the bottom helps nobody.
    enum class Zapas { Bez, NaWiersz };

    void postaw(int nr, int wiersz, const Sumy& sumy, Zapas zapas = Zapas::Bez) {
        const Pasmo& p = pasma_[nr];
        const double wys = wysokosc(p, wiersz);
        double potrzeba = wys;
        if (zapas == Zapas::NaWiersz)
            for (const int i : rola(Rola::Wiersz)) potrzeba += wysokosc(pasma_[i], wiersz);
        const bool naglowek = p.rola == Rola::NaglowekWydruku || p.rola == Rola::NaglowekStrony;
        if (!naglowek && ((p.nowaStrona && y_ > gora_) || (y_ + potrzeba > dol_ + 0.01 && y_ > gora_))) {
            zamknijStrone();
            otworzStrone();
            for (const int i : rola(Rola::NaglowekStrony)) dopisz(i, -1, {});
            gora_ = y_;
            if (otwarte_)
                for (const int i : rola(Rola::NaglowekGrupy))
                    if (pasma_[i].powtarzaj && i != nr) dopisz(i, wiersz_, {});
        }
        if (y_ + wys > dol_ + 0.01 && y_ <= gora_)
            throw Blad(QStringLiteral("Wydruk „%1”: pozycja jest wyższa niż strona.").arg(u_.opis_.tytul));
        dopisz(nr, wiersz, sumy, wys);
        if (naglowek) gora_ = y_;
    }

    void dopisz(int nr, int wiersz, const Sumy& sumy, double wys = -1) {
        if (wys < 0) wys = wysokosc(pasma_[nr], wiersz);
        Polozenie p{nr, wiersz, -1, static_cast<float>(y_), static_cast<float>(wys)};
        if (!sumy.empty()) {
            p.sumy = static_cast<int>(u_.sumy_.size());
            u_.sumy_.push_back(sumy);
        }
        u_.polozenia_.push_back(p);
        y_ += wys;
    }

    void otworzStrone() {
        u_.poczatki_.push_back(u_.polozenia_.size());
        y_ = gora_ = 0;
    }

    void zamknijStrone() {
        y_ = dol_;
        for (const int i : rola(Rola::StopkaStrony)) dopisz(i, -1, {});
        u_.sumyStron_.push_back(static_cast<int>(u_.sumy_.size()));
        u_.sumy_.push_back(strony_);
        zeruj(strony_);
    }

    Uklad& u_;
    const QList<Pasmo>& pasma_;
    std::array<std::vector<int>, 7> wgRoli_;
    std::array<bool, 7> rosnace_{};
    double stopka_ = 0, dol_ = 0;
    double y_ = 0, gora_ = 0; // where the next band stands, and where the headers end
    bool otwarte_ = false;    // within a group
    int wiersz_ = -1;         // the group's first row
    Sumy strony_, calosci_;
    std::vector<Sumy> grupy_;
};

Uklad::Uklad(OpisWydruku opis, std::shared_ptr<const WierszeDruku> wiersze)
    : opis_(std::move(opis)), wiersze_(std::move(wiersze)) {
    for (const QList<Pasmo>& arkusz : opis_.arkusze)
        for (const Pasmo& p : arkusz)
            for (const Element& e : p.elementy)
                if ((e.rodzaj == Rodzaj::Suma || e.rodzaj == Rodzaj::SumaStr) &&
                    std::ranges::find(sumowane_, e.pole) == sumowane_.end())
                    sumowane_.push_back(e.pole);
    Skladanie(*this).zloz();
}

int Uklad::stron() const {
    return static_cast<int>(poczatki_.size() * static_cast<std::size_t>(opis_.arkusze.size()));
}

void Uklad::rysuj(int strona, Plotno& plotno) const {
    const auto arkuszy = static_cast<int>(opis_.arkusze.size());
    const auto nr = static_cast<std::size_t>(strona / arkuszy);
    const QList<Pasmo>& pasma = opis_.arkusze[strona % arkuszy];
    const std::size_t dokad = nr + 1 < poczatki_.size() ? poczatki_[nr + 1] : polozenia_.size();
    for (std::size_t i = poczatki_.at(nr); i < dokad; ++i)
        rysujPasmo(pasma[polozenia_[i].pasmo], polozenia_[i], strona, plotno);
    if (wiersze_->ile() == 0 && !opis_.brakWierszy.isEmpty()) {
        const Strona& s = opis_.strona;
        plotno.tekst({s.lewy, s.gorny + s.wysTresci() / 3, s.szerTresci(), 6}, opis_.brakWierszy,
                     Pismo::Podtytul, Ulozenie::Srodek);
    }
}

void Uklad::rysujPasmo(const Pasmo& pasmo, const Polozenie& p, int strona, Plotno& plotno) const {
    const double przyrost = p.wys - pasmo.wys;
    for (const Element& e : pasmo.elementy) {
        Miejsce m{opis_.strona.lewy + e.miejsce.x, opis_.strona.gorny + p.y + e.miejsce.y, e.miejsce.szer,
                  e.miejsce.wys};
        // A frame grows with its band; what stands at its bottom goes down with it.
        if (przyrost > 0 && e.rodzaj == Rodzaj::Ramka) m.wys += przyrost;
        if (przyrost > 0 && e.rodzaj == Rodzaj::Linia && e.miejsce.y >= pasmo.wys - 0.01) m.y += przyrost;
        rysujElement(pasmo, e, m, p, strona, plotno);
    }
}

Waluta Uklad::suma(const Polozenie& p, const Element& e) const {
    const auto ktora = std::ranges::find(sumowane_, e.pole) - sumowane_.begin();
    return sumy_.at(static_cast<std::size_t>(p.sumy)).at(static_cast<std::size_t>(ktora));
}

void Uklad::rysujPole(const Pasmo& pasmo, const Element& e, const Miejsce& m, int wiersz,
                      Plotno& plotno) const {
    const auto wLiniach = [&](const QStringList& linie, Pismo pismo) {
        Miejsce l{m.x, m.y, m.szer, wysLinii(pismo)};
        for (const QString& linia : linie) {
            plotno.tekst(l, linia, pismo, e.ulozenie);
            l.y += l.wys;
        }
    };
    if (e.rodzaj == Rodzaj::Akapit) {
        if (!pasmo.formularz) return wLiniach(linie(e, *wiersze_, wiersz, e.pismo), e.pismo);
        const auto [linie, pismo] = wcisnij(e, *wiersze_, wiersz);
        return wLiniach(linie, pismo);
    }
    const QString t = wiersz >= 0 ? tekstPola(wiersze_->pole(wiersz, e.pole), e.format) : QString();
    if (e.rodzaj == Rodzaj::Kratki && t.size() <= e.ile) {
        const int puste = e.ulozenie == Ulozenie::Prawo ? e.ile - static_cast<int>(t.size()) : 0;
        return plotno.kratki(m, t, e.pismo, e.ile, puste);
    }
    if (t.contains(QLatin1Char('\n'))) return wLiniach(t.split(QLatin1Char('\n')), e.pismo);
    plotno.tekst(m, t, e.pismo, e.ulozenie);
}

void Uklad::rysujElement(const Pasmo& pasmo, const Element& e, const Miejsce& m, const Polozenie& p,
                         int strona, Plotno& plotno) const {
    const auto kwota = [&](const Polozenie& skad) {
        const Waluta s = suma(skad, e);
        const bool calkowita = e.format == Format::Liczba || e.format == Format::LiczbaBezZera;
        plotno.tekst(m, tekstPola(calkowita ? Wartosc(s.surowa() / 10000) : Wartosc(s), e.format), e.pismo,
                     e.ulozenie);
    };
    switch (e.rodzaj) {
    case Rodzaj::Tekst:
        return plotno.tekst(m, e.tekst, e.pismo, e.ulozenie);
    case Rodzaj::Pole:
    case Rodzaj::Akapit:
    case Rodzaj::Kratki:
        return rysujPole(pasmo, e, m, p.wiersz, plotno);
    case Rodzaj::Suma:
        return kwota(p);
    case Rodzaj::SumaStr: {
        const auto nr = static_cast<std::size_t>(strona / static_cast<int>(opis_.arkusze.size()));
        return kwota({p.pasmo, p.wiersz, sumyStron_.at(nr), p.y, p.wys});
    }
    case Rodzaj::Strona:
        return plotno.tekst(m, e.tekst.arg(strona + 1).arg(stron()), e.pismo, e.ulozenie);
    case Rodzaj::Linia:
    case Rodzaj::Przerywana:
        return plotno.linia(m, e.rodzaj == Rodzaj::Przerywana);
    case Rodzaj::Ramka:
        return plotno.ramka(m);
    case Rodzaj::Obraz:
        return plotno.obraz(m, e.tekst);
    }
}

} // namespace tornel::druk
