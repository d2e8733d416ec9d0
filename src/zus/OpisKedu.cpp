#include "zus/OpisKedu.h"
#include "rules/TabelaStalych.h"
#include "zus/DaneRaportu.h"
#include "zus/PisarzeKedu.h"
#include <algorithm>
#include <QStringList>

namespace tornel::zus {

namespace {

QString tekstWartosci(const Wartosc& w) {
    const QString* tekst = std::get_if<QString>(&w);
    return tekst ? *tekst : QString();
}

qint64 liczbaWartosci(const Wartosc& w) {
    if (const auto* liczba = std::get_if<qint64>(&w)) return *liczba;
    // A marking kept as text, as that of a workplace.
    return tekstWartosci(w).toLongLong();
}

QDate dataWartosci(const Wartosc& w) {
    const QDate* data = std::get_if<QDate>(&w);
    return data ? *data : QDate();
}

Waluta kwotaWartosci(const Wartosc& w) {
    const Waluta* kwota = std::get_if<Waluta>(&w);
    return kwota ? *kwota : Waluta{};
}

bool prawda(const Wartosc& w) {
    return tekstWartosci(w).compare(u"T", Qt::CaseInsensitive) == 0 || liczbaWartosci(w) != 0;
}

QString krzyzyk(bool jest) { return jest ? QStringLiteral("X") : QStringLiteral(" "); }

Wartosc wartoscZrodla(const ZrodloPola& zrodlo, const KontekstKedu& k) {
    return std::visit(Warianty{
                          [](std::monostate) -> Wartosc { return {}; },
                          [&](Kolumna kolumna) { return k.wartosc(kolumna); },
                          [&](const DwieKolumny& d) -> Wartosc {
                              return tekstWartosci(k.wartosc(d.pierwsza)).trimmed() +
                                     tekstWartosci(k.wartosc(d.druga)).trimmed();
                          },
                          [&](const DwieStale& d) -> Wartosc {
                              return QString((k.stale.*d.pierwsza).trimmed() + d.lacznik.toString() +
                                             (k.stale.*d.druga).trimmed());
                          },
                          [&](QString Stale::*stala) -> Wartosc { return k.stale.*stala; },
                          [&](QDate Stale::*stala) -> Wartosc { return k.stale.*stala; },
                          [&](bool Stale::*stala) -> Wartosc { return qint64{k.stale.*stala}; },
                          [](QStringView tekst) -> Wartosc { return tekst.toString(); },
                          [&](Liczone licz) { return licz(k); },
                          [&](int DaneRaportu::*pole) -> Wartosc { return qint64{k.raport->*pole}; },
                          [&](auto DaneRaportu::*pole) -> Wartosc { return k.raport->*pole; },
                      },
                      zrodlo);
}

QString kolejny(qint64 liczba, int od) {
    return liczba > od ? QString::number(liczba - od) : QStringLiteral(" ");
}

} // namespace

void KontekstKedu::ustaw(const TabelaDef& tabela, std::optional<Wiersz> wiersz) {
    for (std::size_t i = 0; i < tabele.size(); ++i) {
        if (tabele[i] != nullptr && tabele[i] != &tabela) continue;
        tabele[i] = &tabela;
        wiersze[i] = wiersz;
        return;
    }
    throw std::logic_error("too many tables in a document");
}

Wartosc KontekstKedu::wartosc(Kolumna k) const {
    for (std::size_t i = 0; i < tabele.size(); ++i)
        if (tabele[i] == k.tabela) return wiersze[i] ? wiersze[i]->wartosc(k) : Wartosc{};
    return {};
}

QString TekstPola(const PoleKedu& p, const KontekstKedu& k) {
    if (p.pisarz == Pisarz::Zera) return QString(p.szer, QLatin1Char('0'));
    if (p.pisarz == Pisarz::Okres) {
        const auto& okres = std::get<DwieKolumny>(p.zrodlo);
        return KeduOkres(dataWartosci(k.wartosc(okres.pierwsza)), dataWartosci(k.wartosc(okres.druga)));
    }
    const Wartosc w = wartoscZrodla(p.zrodlo, k);
    switch (p.pisarz) {
    case Pisarz::Tekst:
        return KeduPole(tekstWartosci(w), p.szer);
    case Pisarz::Cyfry:
        return KeduPole(KeduCyfry(tekstWartosci(w)), p.szer);
    case Pisarz::Data:
        return KeduData(dataWartosci(w));
    case Pisarz::Kwota:
        return KeduKwota(kwotaWartosci(w), p.szer);
    case Pisarz::Licznik:
        return KeduLicznik(liczbaWartosci(w), p.szer);
    case Pisarz::Znacznik:
        return KeduZnacznik(tekstWartosci(w));
    case Pisarz::Wyksztalcenie:
        return KeduWyksztalcenie(liczbaWartosci(w));
    case Pisarz::Krzyzyk:
        return krzyzyk(prawda(w));
    case Pisarz::BezKrzyzyka:
        return krzyzyk(!prawda(w));
    case Pisarz::Rowny:
        return krzyzyk(liczbaWartosci(w) == p.argument);
    case Pisarz::Kolejny:
        return kolejny(liczbaWartosci(w), p.argument);
    default:
        return {};
    }
}

QStringList LinieBloku(const BlokKedu& blok, const KontekstKedu& k) {
    QStringList linie;
    linie.reserve(static_cast<qsizetype>(blok.pola.size()));
    for (const PoleKedu& p : blok.pola) {
        if (p.warunek && !p.warunek(k)) continue;
        if (p.wTejLinii)
            linie.last() += TekstPola(p, k);
        else
            linie.append(TekstPola(p, k));
    }
    return linie;
}

const DokumentKedu& dokumentKedu(KodKedu kod) { return DokumentyKedu()[static_cast<std::size_t>(kod)]; }

const DokumentKedu* znajdzDokument(QStringView nazwa) {
    for (const DokumentKedu& d : DokumentyKedu())
        if (d.nazwa.compare(nazwa, Qt::CaseInsensitive) == 0) return &d;
    return nullptr;
}

const BlokKedu* znajdzBlok(const DokumentKedu& dokument, QStringView nazwa) {
    const auto czesc =
        std::ranges::find(dokument.bloki, nazwa, [](const CzescDokumentu& c) { return c.blok->nazwa; });
    return czesc == dokument.bloki.end() ? nullptr : czesc->blok;
}

} // namespace tornel::zus
