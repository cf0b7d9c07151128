// main() of a fuzzing program that is built without libFuzzer: plays inputs that were saved, one a line in hexadecimal,
// from the files that it is given. Then once more from the last to the first: where a program tells the story of an input,
// it must be the same whatever was played before it.

#include <QByteArray>
#include <QFile>
#include <QVector>

#include <cstdio>

// Not every program has these two.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" __attribute__((weak)) unsigned int fuzzStory();
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size);

namespace {

unsigned int play(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()), size_t(input.size()));
    return fuzzStory ? fuzzStory() : 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (LLVMFuzzerInitialize) {
        LLVMFuzzerInitialize(&argc, &argv);
    }
    QList<QByteArray> inputs;
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read the inputs\n");
            return 2;
        }
        inputs << file.readAll().trimmed().split('\n');
    }
    if (inputs.isEmpty()) {
        std::fprintf(stderr, "no inputs\n");
        return 2;
    }
    QVector<unsigned int> stories;
    for (const QByteArray &input : inputs) {
        stories << play(QByteArray::fromHex(input));
    }
    int different = 0;
    for (int i = int(inputs.size()) - 1; i >= 0; --i) {
        if (play(QByteArray::fromHex(inputs.at(i))) != stories.at(i)) {
            std::fprintf(stderr, "went another way than before: %s\n", inputs.at(i).constData());
            ++different;
        }
    }
    std::printf("%d inputs, %d of them depend on others\n", int(inputs.size()), different);
    return different == 0 ? 0 : 1;
}
