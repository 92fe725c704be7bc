/// Linked with every object of the portable layers: an undefined symbol shows at the link.
int main() { return 0; }
