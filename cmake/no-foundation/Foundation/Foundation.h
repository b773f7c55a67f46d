#error "This target is plain C++: it must not include Foundation."
