#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

// One document on the default printer, of lines in a fixed-pitch font on the printer's own page size: margins, at least 80
// columns between them, a new page when the page is full. A page with a longer line is set in a smaller font as a whole, so that
// nothing of the line is lost and columns stay aligned. Where the printer has no smaller font, the margins give way.
//
// Every failure is error 57, with the system's code: other numbers would speak of a disk. It leaves the document unfinished.
class Imprimante {
public:
    // Begins a document of that title, one print job. Error 57 when there is no printer, or when it refuses.
    explicit Imprimante(const std::wstring & titre);
    // A document that was not ended is aborted: of the pages, those may come out that the printer already took.
    ~Imprimante();
    Imprimante(const Imprimante &)             = delete;
    Imprimante & operator=(const Imprimante &) = delete;

    // No document is under way: ended, aborted, or given up by the user when the printer asked where to put it. What
    // follows prints nothing.
    bool        Abandonnee() const;
    std::size_t Colonnes() const;  // of the ordinary font, between the margins
    std::size_t Lignes() const;    // on a page
    // Prints one line. Tabs are spread already. Error 57.
    void Ligne(std::wstring_view texte);
    // The next line begins a page; nothing where one begins anyway. Error 57.
    void Page_suivante();
    // Ends the page and the document, which may take the time that the printer takes. Without any line nothing comes out.
    // Error 57: the document is then aborted.
    void Terminer();
    // Aborts the document; never throws.
    void Abandonner() noexcept;

private:
    struct Etat;
    std::unique_ptr<Etat> etat_;
};
