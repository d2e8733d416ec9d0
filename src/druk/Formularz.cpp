#include "druk/Formularz.h"

/// The pictures lie in a static library, whose resources the linker would leave out.
static void udostepnijFormularze() { Q_INIT_RESOURCE(formularze); }

namespace tornel::druk {

namespace {

Element elementPola(const PoleFormularza& p) {
    return {.rodzaj = p.kratek > 0 ? Element::Rodzaj::Kratki
                      : p.akapit   ? Element::Rodzaj::Akapit
                                   : Element::Rodzaj::Pole,
            .miejsce = p.miejsce,
            .pole = p.pole,
            .format = p.format,
            .pismo = p.pismo,
            .ulozenie = p.ulozenie,
            .ile = p.kratek};
}

Element elementNapisu(const NapisFormularza& n) {
    return {.miejsce = n.miejsce, .tekst = n.tekst.toString(), .pismo = n.pismo, .ulozenie = n.ulozenie};
}

QList<Element> elementy(const FormularzNaStronie& f, Tlo tlo) {
    QList<Element> wynik;
    if (tlo == Tlo::Obraz) {
        wynik.append({.rodzaj = Element::Rodzaj::Obraz,
                      .miejsce = {0, 0, f.formularz->szer, f.formularz->wys},
                      .tekst = f.formularz->obraz.toString()});
        for (const NapisFormularza& n : f.formularz->napisy) wynik.append(elementNapisu(n));
        for (const NapisFormularza& n : f.dopiski) wynik.append(elementNapisu(n));
    }
    for (const PoleFormularza& p : f.formularz->pola) wynik.append(elementPola(p));
    for (Element& e : wynik) {
        e.miejsce.x += f.x;
        e.miejsce.y += f.y;
    }
    return wynik;
}

} // namespace

void ulozFormularze(OpisWydruku& opis, const QList<QList<FormularzNaStronie>>& strony, Tlo tlo) {
    udostepnijFormularze();
    opis.strona.lewy = opis.strona.prawy = opis.strona.gorny = opis.strona.dolny = 0;
    QList<Pasmo> pasma;
    for (const QList<FormularzNaStronie>& strona : strony) {
        Pasmo pasmo{.rola = Rola::Wiersz, .wys = opis.strona.wys(), .nowaStrona = true, .formularz = true};
        for (const FormularzNaStronie& f : strona) pasmo.elementy += elementy(f, tlo);
        pasma.append(pasmo);
    }
    opis.arkusze = {pasma};
}

} // namespace tornel::druk
