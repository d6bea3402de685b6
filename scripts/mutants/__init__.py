"""The parts of scripts/mutation_check, in the order in which a mutant passes them.

    cpp_text   reads a source as tokens, brackets and statements
    places     finds what can be changed in it: the mutants
    results    draws a sample of them, and keeps what became of each
    build      builds the original once, and a program with a mutant
    tests      knows which tests cover a source
    runner     runs a test within limits, and knows how long it takes
    trial      tells by these whether a mutant is killed
"""
