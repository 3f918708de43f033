#include "pilote/constat.h"

#include <gtest/gtest.h>

int main(int nombre, char ** arguments) {
    testing::InitGoogleTest(&nombre, arguments);
    Pilote::Preparer_essais();
    return RUN_ALL_TESTS();
}
