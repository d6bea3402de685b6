// Reads a file of nested lists with sfsexp, from Debian's libsexp-dev. It takes no comment ahead of the first list.

#include <sexp.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    FILE* file = fopen(argv[1], "rb");
    if (file == NULL || fseek(file, 0, SEEK_END) != 0)
        return 1;
    const size_t size = (size_t)ftell(file);
    char* text = (char*)malloc(size + 1);
    rewind(file);
    if (text == NULL || fread(text, 1, size, file) != size)
        return 1;
    text[size] = '\0';
    char* first = strchr(text, '(');
    const sexp_t* list = first == NULL ? NULL : parse_sexp(first, size - (size_t)(first - text));
    printf("%s\n", list == NULL ? "nothing" : "a list");
    return list == NULL;
}
