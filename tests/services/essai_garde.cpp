#include "app/garde.h"
#include "services/banc.h"

#include <new>
#include <stdexcept>

// What a step throws stays in its trap, whatever it is: the system's window procedures let nothing through.
TEST(Pieges, rien_de_ce_qu_une_etape_leve_n_en_sort) {
    EXPECT_TRUE(Tenter([] {}));
    EXPECT_FALSE(Tenter([] { throw Erreur_execution(Numero::disque_plein, 0, L"a:"); }));
    EXPECT_FALSE(Tenter([] { throw std::bad_alloc(); }));
    EXPECT_FALSE(Tenter([] { throw std::length_error("trop long"); }));
    EXPECT_FALSE(Tenter([] { throw std::out_of_range("au-delà"); }));
}
