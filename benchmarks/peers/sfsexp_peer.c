// Reads a file of nested lists with sfsexp, from Debian's libsexp-dev.

#include <fcntl.h>
#include <sexp.h>
#include <stdio.h>

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    sexp_iowrap_t* file = init_iowrap(open(argv[1], O_RDONLY));
    size_t lists = 0;
    for (sexp_t* list = read_one_sexp(file); list != NULL; list = read_one_sexp(file))
        ++lists;
    printf("%zu\n", lists);
    return lists == 0;
}
