#ifdef GL_ES
attribute vec4 inVertexPosition;
attribute vec4 inVertexColor;
attribute vec2 inTexCoord0;
#endif

uniform mat4 uWVPMatrix;
uniform float uThickness;

varying vec4 vColor;
varying vec2 vTexCoord;

void main() {
#ifdef GL_ES
    gl_Position = uWVPMatrix * inVertexPosition;
    vColor = inVertexColor.bgra;
    vTexCoord = inTexCoord0;
#else
    gl_Position = uWVPMatrix * gl_Vertex;
    vColor = gl_Color;
    // The texture matrix turns render targets upright.
    vTexCoord = (gl_TextureMatrix[0] * vec4(gl_MultiTexCoord0.xy, 0.0, 1.0)).xy;
#endif
    gl_PointSize = uThickness;
}
