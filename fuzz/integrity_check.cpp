// Prints SQLite's own verdict on a store file ("ok" or what is wrong) for the crash trials;
// exits 0 only for "ok".
#include <sqlite3.h>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s STORE\n", argv[0]);
        return 2;
    }
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(argv[1], &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        std::printf("cannot open: %s\n", sqlite3_errmsg(db));
        sqlite3_close(db);
        return 1;
    }
    sqlite3_stmt* st = nullptr;
    bool ok = sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &st, nullptr) == SQLITE_OK;
    int rows = 0;
    while (ok && sqlite3_step(st) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(st, 0));
        std::printf("%s\n", text);
        ok = std::strcmp(text, "ok") == 0;
        ++rows;
    }
    if (rows == 0)
        std::printf("no verdict: %s\n", sqlite3_errmsg(db));
    sqlite3_finalize(st);
    sqlite3_close(db);
    return ok && rows == 1 ? 0 : 1;
}
