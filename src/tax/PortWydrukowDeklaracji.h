// The prints of declarations as a port: their screens offer what they are given, and know nothing of paper.
#pragma once
#include "tax/Deklaracja.h"
#include <functional>
#include <QString>

class QWidget;

namespace tornel::tax {

/// Declarations of one kind, made when a page of theirs is drawn.
struct SeriaStron {
    Deklaracja ktora = Deklaracja::Pit11;
    int ile = 0;
    std::function<WierszDeklaracji(int nr)> wiersz = {}; ///< by its number, from 0
};

/// Each member may be empty, then it is not offered. They may throw `Blad`.
struct PortWydrukowDeklaracji {
    /// Prints or shows one page of the form, 1 or 2.
    std::function<void(const WierszDeklaracji& deklaracja, int strona, QWidget* rodzic)> drukuj = {};
    /// Shows all pages of all the declarations, to be printed.
    std::function<void(const SeriaStron& seria, QWidget* rodzic)> drukujSerie = {};
    /// Writes them into one PDF, whole or not at all.
    std::function<void(const SeriaStron& seria, const QString& plik)> doPdf = {};
};

} // namespace tornel::tax
