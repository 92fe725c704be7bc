export default ZorveWindows;
