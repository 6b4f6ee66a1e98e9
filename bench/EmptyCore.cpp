// A program with Qt Core that does nothing: what the start of any such program costs. scripts/bench
// measures the start of quend-compare against it, in the same rounds.

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return 0;
}
