#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

// One document on the default printer, of lines in a fixed-pitch font on the printer's own page size: margins, at least 80
// columns between them, a new page when the page is full.
class Imprimante {
public:
    // Begins a document of that title, one print job. Errors: 68 when there is no printer, 57 when it refuses.
    explicit Imprimante(const std::wstring & titre);
    // A document that was not ended is aborted, so that nothing half printed comes out.
    ~Imprimante();
    Imprimante(const Imprimante &)             = delete;
    Imprimante & operator=(const Imprimante &) = delete;

    std::size_t Colonnes() const;  // that fit between the margins
    // Prints one line. Tabs are spread already; what would pass the right margin is not printed. Error 57.
    void Ligne(std::wstring_view texte);
    // Ends the page and the document. Error 57: the document is then aborted.
    void Terminer();

private:
    struct Etat;
    std::unique_ptr<Etat> etat_;
};
