function init() {
    return new ZorveWindows();
}
