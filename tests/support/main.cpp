#include <QApplication>

#include <gtest/gtest.h>

namespace test {
void recordReports();
}

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    test::recordReports();
    return RUN_ALL_TESTS();
}
