#ifdef GL_ES
attribute vec4 inVertexPosition;
attribute vec2 inTexCoord0;
#endif

uniform mat4 uWVPMatrix;

varying vec2 vTexCoord;

void main() {
#ifdef GL_ES
    gl_Position = uWVPMatrix * inVertexPosition;
    vTexCoord = inTexCoord0;
#else
    gl_Position = uWVPMatrix * gl_Vertex;
    vTexCoord = gl_MultiTexCoord0.xy;
#endif
}
